// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/panel/selectioncontroller.h"
#include <array>
#include <QWidget>

class QCheckBox;
class QSplitter;

namespace kalvenor::selection {

class FilterPanel;
class MoveButtons;
class NoticeBar;
class PersonListPanel;

/// The search with its filter, both lists and what moves persons between them. The lists stand side by side, or one
/// above the other where there is no room for that.
class SelectionPanel : public QWidget {
    Q_OBJECT
public:
    explicit SelectionPanel(SelectionController &controller, QWidget *parent = nullptr);

    PersonListPanel &listPanel(PersonList list) { return *m_lists[static_cast<std::size_t>(list)]; }
    FilterPanel &filterPanel() { return *m_filter; }
    QSplitter &listSplitter() { return *m_splitter; }
    /// The lists' shares of the room, also where they come to stand another way; none: equal.
    void setListSizes(const QList<int> &sizes);
    /// Which relatives the boxes `quellenpincl` take along.
    Relatives relatives() const;
    bool hasSelection(PersonList list) const;

    /// With less width the lists stand one above the other.
    int leastWidthSideBySide() const;
    /// Wide enough for both lists side by side with usual names.
    QSize sizeHint() const override;
    /// The same whether or not the lists are side by side now.
    QSize minimumSizeHint() const override;

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

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    bool showsWhatIsMeant(PersonList list);
    bool mayMark();
    void takeFocusFromFilter(PersonList to);
    QWidget *makeRelatives();
    void connectLists();
    void connectFilter();
    void arrange();
    int listWidth(const QString &name) const;
    int widthSideBySide(const QString &name, int between) const;
    void explain(QWidget &button, language::Text usual, language::Text why, PersonList list);
    void orderTabs();
    void updateAll();
    PersonListPanel &lastList();

    SelectionController &m_controller;
    std::array<PersonListPanel *, 2> m_lists;
    QSplitter *m_splitter;
    QList<int> m_listSizes{1000, 1, 1000};
    MoveButtons *m_moves;
    std::array<QCheckBox *, 2> m_relatives;
    FilterPanel *m_filter;
    NoticeBar *m_readOnly, *m_changed;
    PersonList m_last = PersonList::Unmarked;
};

} // namespace kalvenor::selection
