// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/selectioncontroller.h"

#include "language/progress/userwork.h"
#include "language/texts/errormessage.h"
#include "platform/jet/marks/markwriter.h"
#include "selection/marking/leftpersons.h"
#include <QTimer>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

/// The persons that arrive in a list are shown selected up to here.
constexpr std::size_t FewPersons = 1000;

} // namespace

SelectionController::SelectionController(data::Session &session, desktop::Work &work, QObject *parent)
    : QObject(parent), m_session(session), m_work(work), m_lists{List(PersonList::Unmarked), List(PersonList::Marked)},
      m_watcher(session.databases.Familiendatenbank)
{
    connect(&m_watcher, &DatabaseWatcher::changedElsewhere, this, &SelectionController::changedElsewhere);
    connect(&session, &data::Session::databaseClosing, this, &SelectionController::letGo);
    connect(&session, &data::Session::databaseExchanged, this, &SelectionController::takeOver);
    // A filter that was wanted while other work ran.
    connect(&work, &desktop::Work::ended, this, [this] {
        if (m_wanted && !m_filtering)
            QTimer::singleShot(0, this, &SelectionController::runFilters);
    });
}

QString SelectionController::numberText(qint64 number) const
{
    return language::anzeigesprache(m_session.host).toString(number);
}

qint64 SelectionController::personCount() const
{
    return m_lists[0].model.personCount();
}

/// A filter narrows one list at most; the other one tells how many are marked.
qint64 SelectionController::markedCount() const
{
    return isFiltered(PersonList::Marked) ? personCount() - m_lists[0].model.rowCount() : m_lists[1].model.rowCount();
}

/// False where the task was not begun or failed; a failure was told.
bool SelectionController::perform(const QString &what, const desktop::Work::Task &task, desktop::Work::Input input)
{
    return language::runAndTell(m_work, m_session.host, m_session.language, what, task,
                                {.said = [this](const QString &end) { Q_EMIT said(end); }, .input = input});
}

/// Runs the lists' queries, those alone whose result can have changed unless `all`. Both lists change, or none.
void SelectionController::load(const std::array<QString, 2> &queries, bool all, const basic::Progress &progress,
                               bool announce)
{
    const std::shared_ptr<dao::Database> database = m_session.databases.Familiendatenbank;
    database->refresh();
    m_readOnly = jet::isWriteProtected(database->file());
    std::array<std::shared_ptr<dao::Recordset>, 2> results;
    quint64 generation = 0;
    // Where another program changes the file between the two queries, both lists must show the newer state.
    for (int attempt = 0; attempt < 3 && generation != database->generation(); ++attempt) {
        generation = database->generation();
        for (std::size_t i = 0; i < results.size(); ++i) {
            if (!all && queries[i] == m_lists[i].query && m_lists[i].generation == generation)
                continue;
            if (announce)
                m_work.announce(i == 0 ? u"Lade 1. Liste neu"_s : u"Lade 2. Liste neu"_s);
            results[i] = database->openQuery(queries[i], progress);
        }
    }
    const bool newer = all || m_lists[0].generation != generation;
    for (std::size_t i = 0; i < results.size(); ++i) {
        m_lists[i].query = queries[i];
        if (results[i]) {
            m_lists[i].model.show(results[i]);
            m_lists[i].generation = generation;
        }
    }
    m_watcher.setSeen();
    if (newer)
        Q_EMIT personsChanged();
    Q_EMIT changed();
}

void SelectionController::reloadLists()
{
    perform(m_session.language.text(Text::ReadingDatabase),
            [this](const basic::Progress &progress) { load(queries(), true, progress); });
}

void SelectionController::reloadPlain(PersonList list)
{
    auto wanted = queries();
    wanted[place(list)] = plainListQuery(list);
    if (perform(m_session.language.text(Text::ReadingDatabase),
                [&](const basic::Progress &progress) { load(wanted, true, progress); }))
        forgetFilter();
}

// Filter

void SelectionController::filter(const Filter &filter, bool typed)
{
    m_wanted = WantedFilter{filter, typed};
    m_latestList = filter.Filterliste;
    m_filterShown = false;
    if (m_work.isRunning())
        giveUpFilter();
    else
        runFilters();
}

void SelectionController::forgetFilter()
{
    m_filterShown = true;
    Q_EMIT filterEnded();
}

void SelectionController::giveUpFilter()
{
    if (m_filtering)
        m_work.cancel();
}

QString SelectionController::refusal(const QString &typed, const basic::Error &error)
{
    language::Sprachmodul &texts = m_session.language;
    const PatternProblem problem = patternProblem(typed);
    if (problem.text == Text::None)
        return texts.text(Text::FilterNotUnderstood).arg(language::errorSentence(texts, error));
    return problem.better.isEmpty() ? texts.text(problem.text) : texts.text(problem.text).arg(problem.better);
}

void SelectionController::runFilters()
{
    while (m_wanted && !m_work.isRunning()) {
        const WantedFilter wanted = *std::exchange(m_wanted, std::nullopt);
        m_filtering = true;
        perform(
            m_session.language.text(Text::PleaseWait),
            [&](const basic::Progress &progress) {
                try {
                    const FilterQueries built = filtern(wanted.filter, basic::systemDateOrder());
                    load(built.queries, false, progress);
                    m_filterShown = true;
                    Q_EMIT filtered(built.pattern, wanted.typed);
                } catch (const basic::Error &error) {
                    if (error.kind() == basic::ErrorKind::InvalidSql ||
                        error.kind() == basic::ErrorKind::InvalidPattern || error.kind() == basic::ErrorKind::Refused)
                        Q_EMIT filterRefused(refusal(wanted.filter.Presse, error));
                    else if (error.kind() == basic::ErrorKind::Cancelled ? !m_wanted : !wanted.typed)
                        throw;
                    else if (error.kind() != basic::ErrorKind::Cancelled)
                        Q_EMIT filterRefused(
                            language::errorMessage(m_session.language, error)); // nobody wants a box while typing
                }
            },
            desktop::Work::Input::Typing);
        m_filtering = false;
        Q_EMIT filterEnded();
    }
}

void SelectionController::clearFilter()
{
    m_wanted.reset();
    if (perform(m_session.language.text(Text::PleaseWait), [this](const basic::Progress &progress) {
            load({plainListQuery(PersonList::Unmarked), plainListQuery(PersonList::Marked)}, false, progress);
        }))
        forgetFilter();
}

// Marks

/// Carries the change out, and both lists show it also where it ended half-way. What it changed; nothing where it was
/// not begun or failed before it changed anything.
std::optional<MarkStep> SelectionController::changeMarks(const QString &what, const Change &change, bool announceLists)
{
    std::optional<MarkStep> done;
    m_metOthers = false;
    perform(what, [&](const basic::Progress &progress) {
        dao::Database &family = *m_session.databases.Familiendatenbank;
        const dao::MarkSnapshot before = family.marks(u"Daten"_s);
        const quint64 generation = family.generation();
        // The marks are set; lists that did not show them would be wrong.
        const basic::Progress toTheEnd = [&progress](qint64 steps, qint64 total) {
            progress(steps, total);
            return true;
        };
        try {
            done = change(progress);
        } catch (const basic::Error &) {
            const std::exception_ptr failure = std::current_exception();
            try {
                family.refresh();
                done = family.marks(u"Daten"_s).since(before);
                load(queries(), true, toTheEnd);
            } catch (const basic::Error &) {
                // The first failure is the one to tell.
            }
            std::rethrow_exception(failure);
        }
        load(queries(), true, toTheEnd, announceLists);
        m_metOthers = family.generation() != generation;
    });
    return done;
}

void SelectionController::tellMoved(const MarkStep &step, std::span<const dao::LeftRow> left)
{
    QString what;
    if (!step.marked.empty())
        what = m_session.language.text(Text::Marked).arg(numberText(static_cast<qint64>(step.marked.size())));
    else if (!step.unmarked.empty())
        what = m_session.language.text(Text::Unmarked).arg(numberText(static_cast<qint64>(step.unmarked.size())));
    const QString others = m_metOthers ? m_session.language.text(Text::ChangedMeanwhile) : QString();
    if (!what.isEmpty())
        Q_EMIT moved((what + u' ' + others).trimmed());
    else if (m_metOthers)
        Q_EMIT said(others);
    Q_EMIT changed();
    if (!left.empty())
        m_session.host.desktop().messageBox(leftPersons(m_session.language, m_session.databases, left), 0,
                                            m_session.language.text(Text::MarkingPersons));
}

void SelectionController::move(PersonList from, const std::vector<qint32> &counters, Relatives relatives)
{
    if (counters.empty())
        return;
    const bool mark = from == PersonList::Unmarked;
    bool limitReached = false;
    std::vector<dao::LeftRow> left;
    const QString what = relatives.children || relatives.parents ? m_session.language.text(Text::SearchingRelatives)
                                                                 : m_session.language.text(Text::MarkingPersons);
    const auto step = changeMarks(what, [&](const basic::Progress &progress) {
        MarkingResult result = markPersons(m_session.databases, counters, mark, relatives, progress);
        limitReached = result.limitReached;
        left = std::move(result.left);
        return mark ? MarkStep{std::move(result.changed), {}} : MarkStep{{}, std::move(result.changed)};
    });
    if (!step)
        return;
    m_history.record(*step);
    const std::vector<qint32> &moved = mark ? step->marked : step->unmarked;
    const PersonList to = mark ? PersonList::Marked : PersonList::Unmarked;
    if (moved.size() <= FewPersons && !moved.empty()) {
        std::vector<quint32> tableRows;
        dao::Recordset &persons = *m_session.databases.Datentabelle;
        for (const qint32 counter : moved) {
            persons.seekEqual(counter);
            if (!persons.noMatch() && model(to).countsIn(persons))
                tableRows.push_back(static_cast<quint32>(persons.position()));
        }
        Q_EMIT arrived(to, tableRows);
    }
    tellMoved(*step, left);
    if (limitReached)
        m_session.host.desktop().messageBox(m_session.language.text(Text::RelativesLimitReached), 0,
                                            m_session.language.text(Text::MarkRelatives));
}

void SelectionController::moveAll(PersonList from)
{
    const bool mark = from == PersonList::Unmarked;
    const QString what =
        mark ? m_session.language.text(Text::MarkingPersons) : m_session.language.text(Text::UnmarkingAll);
    std::vector<dao::LeftRow> left;
    const auto step = changeMarks(
        what,
        [&](const basic::Progress &progress) {
            dao::Execution done =
                m_session.databases.Familiendatenbank->execute(markAllStatement(from, query(from)), progress);
            left = std::move(done.left);
            return mark ? MarkStep{std::move(done.changedKeys), {}} : MarkStep{{}, std::move(done.changedKeys)};
        },
        true);
    if (!step)
        return;
    m_history.record(*step);
    tellMoved(*step, left);
}

void SelectionController::undo()
{
    if (canUndo())
        goThrough(Text::Undo, &MarkHistory::undo);
}

void SelectionController::redo()
{
    if (canRedo())
        goThrough(Text::Redo, &MarkHistory::redo);
}

void SelectionController::goThrough(Text what, decltype(&MarkHistory::undo) step)
{
    bool finished = false;
    changeMarks(m_session.language.text(Text::PleaseWait), [&](const basic::Progress &progress) {
        (m_history.*step)(m_session.databases, progress);
        finished = true;
        return MarkStep{};
    });
    if (finished)
        Q_EMIT said(m_session.language.text(what));
    Q_EMIT changed();
}

// Another database

void SelectionController::letGo()
{
    m_wanted.reset();
    for (List &list : m_lists)
        list.model.show(nullptr);
}

/// The lists are shown again once the work that exchanged the databases has ended.
void SelectionController::takeOver(bool otherDatabase)
{
    m_watcher.watch(m_session.databases.Familiendatenbank);
    if (otherDatabase)
        m_history.clear();
    const auto show = [this, otherDatabase] {
        otherDatabase ? showPlain() : reloadLists();
    };
    if (m_work.isRunning())
        connect(&m_work, &desktop::Work::ended, this, show, Qt::SingleShotConnection);
    else
        show();
}

void SelectionController::showTemplate(const MarkStep &changes)
{
    m_history.record(changes);
    showPlain();
}

void SelectionController::showPlain()
{
    m_wanted.reset();
    perform(m_session.language.text(Text::ReadingDatabase), [this](const basic::Progress &progress) {
        load({plainListQuery(PersonList::Unmarked), plainListQuery(PersonList::Marked)}, true, progress);
    });
    Q_EMIT filterDropped();
    forgetFilter();
}

} // namespace kalvenor::selection
