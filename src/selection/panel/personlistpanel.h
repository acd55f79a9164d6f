// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/lists/personlistview.h"
#include <QWidget>

class QLabel;
class QToolButton;

namespace kalvenor::selection {

class SelectionController;

/// One list with its heading: what it holds, how many of how many, and `Ladepersonenliste`, which reloads the list
/// without a filter and says while there is one.
class PersonListPanel : public QWidget {
    Q_OBJECT
public:
    PersonListPanel(SelectionController &controller, PersonList list, QWidget *parent = nullptr);

    PersonListView &view() { return *m_view; }
    QToolButton &loadButton() { return *m_load; }
    PersonList list() const { return m_list; }
    /// Brings heading and figures up to date.
    void update();

private:
    SelectionController &m_controller;
    PersonList m_list;
    PersonListView *m_view;
    QToolButton *m_load;
    QLabel *m_figures;
};

} // namespace kalvenor::selection
