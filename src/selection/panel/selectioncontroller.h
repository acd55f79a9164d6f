// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "language/texts/sprache.h"
#include "platform/desktop/work.h"
#include "selection/filter/filtern.h"
#include "selection/lists/personlistmodel.h"
#include "selection/marking/markhistory.h"
#include "selection/marking/marking.h"
#include "selection/panel/databasewatcher.h"
#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace kalvenor::selection {

/// Both person lists and what can be done with them, without a window. Each action catches what goes wrong in it and
/// says so once: an unsound filter by filterRefused(), everything else in a message box. The lists then stay as they
/// are. Actions asked for while other work is running are not begun, save filters, which wait.
class SelectionController : public QObject {
    Q_OBJECT
public:
    SelectionController(data::Session &session, desktop::Work &work, QObject *parent = nullptr);

    PersonListModel &model(PersonList list) { return m_lists[place(list)].model; }
    /// The query of what the list shows: a filter's, or the plain one.
    const QString &query(PersonList list) const { return m_lists[place(list)].query; }
    bool isFiltered(PersonList list) const { return query(list) != plainListQuery(list); }
    /// The list shows what the latest filter means for it; not so where that was refused or cancelled, or still waits.
    bool agrees(PersonList list) const { return m_filterShown || (list != m_latestList && !isFiltered(list)); }
    /// All persons of the database, whatever the lists show.
    qint64 personCount() const;
    qint64 markedCount() const;
    /// Nobody can be marked: the database's file, or its folder, is write-protected. As the lists were loaded last.
    bool isReadOnly() const { return m_readOnly; }
    bool canUndo() const { return m_history.canUndo() && !m_readOnly; }
    bool canRedo() const { return m_history.canRedo() && !m_readOnly; }
    data::Session &session() const { return m_session; }
    desktop::Work &work() const { return m_work; }
    /// A number as the interface language writes it.
    QString numberText(qint64 number) const;

    /// Runs both queries again; another program's changes come in.
    void reloadLists();
    /// Gives the list its plain query and runs it.
    void reloadPlain(PersonList list);
    /// `typed`: while the user is still typing; the pattern is then not written back. A filter that is still running
    /// is given up for the newer one.
    void filter(const Filter &filter, bool typed = false);
    /// What was typed means nothing any more, and the lists show no filter.
    void forgetFilter();
    /// What is being typed will make the running filter old.
    void giveUpFilter();
    void clearFilter();

    /// Moves these persons to the other list.
    void move(PersonList from, const std::vector<qint32> &counters, Relatives relatives);
    /// Moves all persons that the list shows (`RMA_Click` and `RM2A_Click`).
    void moveAll(PersonList from);
    void undo();
    void redo();

    /// A template was opened in the same database: both lists become plain, and what it changed can be undone.
    void showTemplate(const MarkStep &changes);
    /// Looks whether another program changed the database.
    void lookForChanges() { m_watcher.look(); }

Q_SIGNALS:
    /// Lists, filter state, figures or undo have changed.
    void changed();
    /// Marks, or what is known of the persons, may have changed.
    void personsChanged();
    /// A filter was carried out; its pattern goes back into the text box unless the user is typing there.
    void filtered(const QString &pattern, bool typed);
    void filterRefused(const QString &why);
    /// The latest filter has come to its end, shown or not.
    void filterEnded();
    /// Both lists became plain ones though nobody cleared the filter.
    void filterDropped();
    /// After a move, when both lists are shown: rows of the person table, for few persons only.
    void arrived(PersonList list, const std::vector<quint32> &tableRows);
    /// What was done, for the status bar.
    void said(const QString &text);
    /// The same of persons that were moved, which can be undone.
    void moved(const QString &text);
    /// Another program changed the database; nothing is reloaded yet.
    void changedElsewhere();

private:
    struct List {
        PersonListModel model;
        QString query;
        quint64 generation = 0; ///< of the database when the query ran
        explicit List(PersonList list) : model(list), query(plainListQuery(list)) {}
    };
    struct WantedFilter {
        Filter filter;
        bool typed = false;
    };
    using Change = std::function<MarkStep(const basic::Progress &)>;

    static std::size_t place(PersonList list) { return static_cast<std::size_t>(list); }
    bool perform(const QString &what, const desktop::Work::Task &task,
                 desktop::Work::Input input = desktop::Work::Input::CancelOnly);
    void load(const std::array<QString, 2> &queries, bool all, const basic::Progress &progress, bool announce = false);
    std::array<QString, 2> queries() const { return {m_lists[0].query, m_lists[1].query}; }
    std::optional<MarkStep> changeMarks(const QString &what, const Change &change, bool announceLists = false);
    void goThrough(language::Text what, decltype(&MarkHistory::undo) step);
    void runFilters();
    QString refusal(const QString &typed, const basic::Error &error);
    void tellMoved(const MarkStep &step, std::span<const dao::LeftRow> left);
    void letGo();
    void takeOver(bool otherDatabase);
    void showPlain();

    data::Session &m_session;
    desktop::Work &m_work;
    std::array<List, 2> m_lists;
    MarkHistory m_history;
    DatabaseWatcher m_watcher;
    std::optional<WantedFilter> m_wanted;
    bool m_metOthers = false; ///< another program changed the database before or while the latest marks were set
    bool m_filtering = false;
    bool m_readOnly = false;
    PersonList m_latestList = PersonList::Unmarked; ///< of the latest filter
    bool m_filterShown = true; ///< the latest filter was carried out, or the lists were made plain since
};

} // namespace kalvenor::selection
