// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include <QKeySequence>
#include <QList>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace kalvenor::app {

/// The main window's commands, in its menus and its tool bar. Texts are design-time texts.
struct MainActions {
    explicit MainActions(QMainWindow &window);

    // Statistic; the templates' commands are found by the names "oeffnen", "speichern" and "loeschen"
    QAction *openTemplate, *saveTemplate, *saveTemplateAs, *reset, *database, *preview, *print, *exportFile, *settings;
    QAction *quit;
    // Edit
    QAction *undo, *redo, *copy, *selectAll, *mark, *unmark, *markAll, *unmarkAll, *find;
    // View
    QAction *introduction, *chart, *ageList, *showTools, *showStatus, *showFilter, *reload;
    // Help
    QAction *manual, *shortcuts, *about;

    QMenu *recent;
    QToolBar *tools;
    QList<QAction *> all;

private:
    QAction *make(const char *name, language::Text caption, const QKeySequence &keys = {});
    QMenu *makeMenu(language::Text caption, const QList<QAction *> &actions);
    void makeStatistic();
    void makeEdit();
    void makeView();
    void makeHelp();
    void makeToolBar();

    QMainWindow &m_window;
};

} // namespace kalvenor::app
