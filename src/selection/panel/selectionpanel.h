// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/panel/selectioncontroller.h"
#include <array>
#include <QWidget>

class QAbstractButton;
class QCheckBox;
class QSplitter;

namespace kalvenor::selection {

class FilterPanel;
class PersonListPanel;

/// Both lists side by side, what moves persons between them, and the filter below.
class SelectionPanel : public QWidget {
    Q_OBJECT
public:
    explicit SelectionPanel(SelectionController &controller, QWidget *parent = nullptr);

    PersonListPanel &listPanel(PersonList list) { return *m_lists[static_cast<std::size_t>(list)]; }
    FilterPanel &filterPanel() { return *m_filter; }
    QSplitter &listSplitter() { return *m_splitter; }
    /// Which relatives the boxes `quellenpincl` take along.
    Relatives relatives() const;
    bool hasSelection(PersonList list) const;

    void moveSelected(PersonList from);
    void moveAll(PersonList from);
    /// In the list that has the focus, or had it last.
    void copyNames();
    void selectAllPersons();
    void addListAction(QAction *action);

Q_SIGNALS:
    /// Which persons can be moved has changed.
    void selectionChanged();
    void said(const QString &text);

private:
    bool showsWhatIsMeant(PersonList list);
    void takeFocusFromFilter(PersonList to);
    QWidget *makeMoveColumn();
    QWidget *makeNoticeBar();
    void connectFilter();
    void orderTabs();
    void updateAll();
    PersonListPanel &lastList();

    SelectionController &m_controller;
    std::array<PersonListPanel *, 2> m_lists;
    std::array<QAbstractButton *, 2> m_move; ///< by the list that is moved from
    std::array<QAbstractButton *, 2> m_moveAll;
    std::array<QCheckBox *, 2> m_relatives;
    QSplitter *m_splitter;
    FilterPanel *m_filter;
    QWidget *m_notice;
    PersonList m_last = PersonList::Unmarked;
};

} // namespace kalvenor::selection
