// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// window PROGRAM-FOLDER: opens the main window over the host and does what users do, with all persons. For each step it
// prints how long it took until all was shown, and the longest time that the window answered nothing meanwhile. Marks
// are changed, and are all unmarked in the end: give it a host of its own.
#include "app/start/program.h"
#include "app/window/auswahl.h"
#include "selection/panel/personlistpanel.h"
#include "selection/panel/selectionpanel.h"
#include "statistics/panel/statisticspanel.h"
#include <algorithm>
#include <cstdio>
#include <functional>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace kalvenor;

namespace {

constexpr int QuietMs = 500; ///< longer than any pause after which the window begins something by itself
constexpr int BusyMs = 10;
constexpr int KeyMs = 60;

/// Notices how long the event loop was not served, and when the program last showed something new.
class Watch : public QObject {
public:
    Watch()
    {
        m_clock.start();
        m_beat.setTimerType(Qt::PreciseTimer);
        connect(&m_beat, &QTimer::timeout, this, [this] { beat(); });
    }
    void begin()
    {
        m_beat.start(1);
        m_longest = 0;
        m_begin = m_painted = m_clock.nsecsElapsed();
        m_last = m_begin;
    }
    /// Until nothing was done or painted for a while.
    void waitForQuiet(const desktop::Work *work = nullptr)
    {
        const auto quiet = [&] {
            return (work == nullptr || !work->isRunning()) &&
                   m_clock.nsecsElapsed() - std::max({m_painted, m_begin, m_busy}) > QuietMs * 1'000'000LL;
        };
        while (!quiet())
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    double took() const { return static_cast<double>(m_painted - m_begin) / 1e6; }
    double longest() const { return static_cast<double>(m_longest) / 1e6; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [this] { m_painted = m_clock.nsecsElapsed(); });
        return false;
    }

private:
    void beat()
    {
        const qint64 now = m_clock.nsecsElapsed();
        m_longest = std::max(m_longest, now - m_last);
        if (now - m_last > BusyMs * 1'000'000LL)
            m_busy = now;
        m_last = now;
    }

    QElapsedTimer m_clock;
    QTimer m_beat;
    qint64 m_last = 0;
    qint64 m_longest = 0;
    qint64 m_begin = 0;
    qint64 m_busy = 0; ///< until then, at least
    qint64 m_painted = 0;
};

void tell(const char *step, const Watch &watch)
{
    std::printf("%-34s %8.0f ms  blocked %6.0f ms\n", step, watch.took(), watch.longest());
    std::fflush(stdout);
}

void type(QLineEdit &entry, const QString &text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
        QApplication::sendEvent(&entry, &press);
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < KeyMs;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, KeyMs);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: window PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0); // blinking is no news
    Watch watch;
    qApp->installEventFilter(&watch);
    desktop::TerminalDesktop terminal;
    app::Program program(basic::windowsPath(QString::fromLocal8Bit(argv[1])), terminal);
    std::unique_ptr<app::Auswahl> window;
    watch.begin();
    program.Main([&] {
        window = std::make_unique<app::Auswahl>(program);
        window->show();
        return window.get();
    });
    if (!window)
        return 1;
    watch.waitForQuiet();
    tell("start, until the lists are shown", watch);

    using selection::PersonList;
    selection::SelectionController &lists = window->controller();
    auto &name = *window->findChild<QLineEdit *>(u"Presse"_s);
    auto &tabs = window->statisticsPanel().tabs();
    const auto action = [&](const char *actionName) {
        return [&, actionName] {
            window->findChild<QAction *>(QLatin1String(actionName))->trigger();
        };
    };
    const auto tab = [&](statistics::StatisticsPanel::Tab which) {
        return [&, which] {
            tabs.setCurrentIndex(which);
        };
    };
    const std::pair<const char *, std::function<void()>> steps[] = {
        {"age list page", tab(statistics::StatisticsPanel::AgeList)},
        {"typing \"fischer\" in the filter",
         [&] {
             name.setFocus();
             type(name, u"fischer"_s);
         }},
        {"clearing the filter",
         [&] {
             lists.clearFilter();
         }},
        {"chart page", tab(statistics::StatisticsPanel::Chart)},
        {"mark all, chart shown",
         [&] {
             lists.moveAll(PersonList::Unmarked);
         }},
        {"age list page, all marked", tab(statistics::StatisticsPanel::AgeList)},
        {"chart page, all marked", tab(statistics::StatisticsPanel::Chart)},
        {"reload", action("Neuladen")},
        {"undo", action("Rueckgaengig")},
        {"redo", action("Wiederherstellen")},
        {"preview", action("Seitenansicht")},
        {"introduction page", tab(statistics::StatisticsPanel::Introduction)},
        {"unmark all",
         [&] {
             lists.moveAll(PersonList::Marked);
         }},
    };
    for (const auto &[step, act] : steps) {
        watch.begin();
        QTimer::singleShot(0, window.get(), act);
        watch.waitForQuiet(&lists.work());
        tell(step, watch);
    }
    window->close();
    return 0;
}
