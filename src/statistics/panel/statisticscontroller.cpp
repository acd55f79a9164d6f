// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/statisticscontroller.h"

#include "language/progress/userwork.h"
#include "language/texts/sprache.h"
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr qint64 GrowEveryMs = 40;
/// What takes longer is not computed unasked after each change of the marks: keys pressed meanwhile would be lost.
constexpr qint64 LongMs = 300;

} // namespace

StatisticsController::StatisticsController(data::Session &session, desktop::Work &work, QObject *parent)
    : QObject(parent), m_session(session), m_work(work)
{
    connect(&session, &data::Session::databaseExchanged, this, &StatisticsController::forget);
}

bool StatisticsController::perform(const QString &what, const desktop::Work::Task &task)
{
    QElapsedTimer clock;
    clock.start();
    m_mayFollow = false;
    const bool done = language::runAndTell(m_work, m_session.host, m_session.language, what, task,
                                           {.said = [this](const QString &end) {
                                               Q_EMIT said(end);
                                           }});
    m_mayFollow = done && clock.elapsed() <= LongMs;
    return done;
}

bool StatisticsController::alterslistenausgabe(const GeschlechtAlter &geschlechtalter)
{
    if (m_work.isRunning())
        return false;
    m_list.clear();
    ++m_results;
    Q_EMIT listCleared();
    m_listCurrent = geschlechtalter[0] == 0 && geschlechtalter[1] == 0;
    if (m_listCurrent) // nothing to wait for, the pointer stays as it is
        return true;
    QElapsedTimer clock;
    clock.start();
    qint64 shown = 0;
    qint64 marked = 0;
    const bool done = perform(m_session.language.text(Text::ComputingAgeList), [&](const basic::Progress &progress) {
        marked = statistics::alterslistenausgabe(m_session.databases, geschlechtalter, m_list,
                                                 [&](qint64 step, qint64 total) {
                                                     if (clock.elapsed() - shown >= GrowEveryMs) {
                                                         Q_EMIT listGrew();
                                                         shown = clock.elapsed();
                                                     }
                                                     return progress(step, total);
                                                 });
    });
    m_listCurrent = done;
    m_marked = marked;
    if (marked > 0)
        m_session.host.desktop().setPointer(desktop::Pointer::Custom);
    Q_EMIT listGrew();
    return done;
}

bool StatisticsController::grafikermitteln(const Statistik &statistik)
{
    const bool done = perform(m_session.language.text(Text::ComputingChart), [&](const basic::Progress &progress) {
        m_figures = statistics::grafikermitteln(m_session.databases, statistik, progress);
        ++m_results;
    });
    m_figuresCurrent = done;
    if (done)
        Q_EMIT figuresChanged();
    return done;
}

std::optional<Saeule> StatisticsController::saeule(const Statistik &statistik, Gruppe gruppe, int jahrhundert)
{
    std::optional<Saeule> found;
    perform(m_session.language.text(Text::ComputingAgeList), [&](const basic::Progress &progress) {
        found = statistics::saeule(m_session.databases, statistik, gruppe, jahrhundert, progress);
    });
    return found;
}

std::optional<std::vector<Ausgelassener>> StatisticsController::auslassungen()
{
    std::optional<std::vector<Ausgelassener>> found;
    perform(m_session.language.text(Text::ReadingDatabase),
            [&](const basic::Progress &progress) { found = statistics::auslassungen(m_session.databases, progress); });
    return found;
}

} // namespace kalvenor::statistics
