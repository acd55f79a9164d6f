// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/lists/personlistview.h"
#include <QWidget>

class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;

namespace kalvenor::desktop {
class ElidedLabel;
}

namespace kalvenor::selection {

class SelectionController;

/// One list between its heading and a line that says how many of how many it shows. In the heading `Ladepersonenliste`,
/// which reloads the list without a filter and says while there is one, and a cross that lifts the filter. Where the
/// list is empty, why, and the way on. What the list shows or selects moves nothing around it.
class PersonListPanel : public QWidget {
    Q_OBJECT
public:
    PersonListPanel(SelectionController &controller, PersonList list, QWidget *parent = nullptr);

    PersonListView &view() { return *m_view; }
    QToolButton &loadButton() { return *m_load; }
    QToolButton &liftButton() { return *m_lift; }
    QPushButton &wayOnButton() { return *m_wayOn; }
    PersonList list() const { return m_list; }
    /// Brings heading and figures up to date.
    void update();

Q_SIGNALS:
    /// The filter shall be lifted.
    void liftWanted();
    /// All persons that this list shows shall go to the other one.
    void moveAllWanted(PersonList from);

private:
    void makeHead();
    void makeEmptyState();
    void showFilterState();
    void showFigures();
    void showEmptyState();

    SelectionController &m_controller;
    PersonList m_list;
    QToolButton *m_load, *m_lift;
    PersonListView *m_view;
    desktop::ElidedLabel *m_figures;
    QScrollArea *m_empty; ///< low lists scroll it
    QLabel *m_why;
    QPushButton *m_wayOn;
};

} // namespace kalvenor::selection
