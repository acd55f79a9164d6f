// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

class QAction;
class QMainWindow;
class QToolBar;

namespace kalvenor::app {

/// The main window's commands, in its menus and its tool bar. Texts are design-time texts.
struct MainActions {
    explicit MainActions(QMainWindow &window);

    QAction *quit, *undo, *redo, *copy, *selectAll, *mark, *unmark, *markAll, *unmarkAll, *find;
    QAction *showTools, *showStatus, *showFilter, *reload, *shortcuts;
    QToolBar *tools;
    QList<QAction *> all;

private:
    void makeMenus(QMainWindow &window);
    void makeToolBar(QMainWindow &window);
};

} // namespace kalvenor::app
