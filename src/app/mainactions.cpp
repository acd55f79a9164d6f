// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/mainactions.h"

#include "language/widgetform.h"
#include "platform/desktop/lineicon.h"
#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace kalvenor::app {

namespace {

QAction *makeAction(QMainWindow &window, const char *name, const char *caption, const QKeySequence &keys = {})
{
    auto *action = new QAction(&window);
    action->setObjectName(QLatin1String(name));
    language::setDesignText(action, QString::fromUtf8(caption));
    action->setShortcut(keys);
    return action;
}

QMenu *makeMenu(QMainWindow &window, const char *caption, const QList<QAction *> &actions)
{
    auto *menu = window.menuBar()->addMenu(QString());
    language::setDesignText(menu, QString::fromUtf8(caption));
    for (QAction *action : actions) {
        if (action == nullptr)
            menu->addSeparator();
        else
            menu->addAction(action);
    }
    return menu;
}

void giveToolButton(QAction *action, LineIcon icon, const char *caption, const char *tooltip)
{
    action->setIcon(lineIcon(icon));
    language::setDesignToolCaption(action, QString::fromUtf8(caption));
    language::setDesignText(action, {}, QString::fromUtf8(tooltip));
}

} // namespace

MainActions::MainActions(QMainWindow &window)
    : quit(makeAction(window, "Beenden", "20112 &Beenden", Qt::CTRL | Qt::Key_Q)),
      undo(makeAction(window, "Rueckgaengig", "20121 &Rückgängig", Qt::CTRL | Qt::Key_Z)),
      redo(makeAction(window, "Wiederherstellen", "20122 &Wiederherstellen", Qt::CTRL | Qt::SHIFT | Qt::Key_Z)),
      copy(makeAction(window, "Kopieren", "20128 &Kopieren", Qt::CTRL | Qt::Key_C)),
      selectAll(makeAction(window, "Allesauswaehlen", "20131 &Alles auswählen")),
      mark(makeAction(window, "Markieren", "20123 Person &markieren", Qt::CTRL | Qt::Key_M)),
      unmark(makeAction(window, "Aufheben", "20124 Markierung &aufheben", Qt::CTRL | Qt::Key_U)),
      markAll(makeAction(window, "Allemarkieren", "20125 A&lle markieren", Qt::CTRL | Qt::SHIFT | Qt::Key_M)),
      unmarkAll(
          makeAction(window, "Alleaufheben", "20126 Alle Markierungen auf&heben", Qt::CTRL | Qt::SHIFT | Qt::Key_U)),
      find(makeAction(window, "Suchen", "20127 &Person suchen", Qt::CTRL | Qt::Key_F)),
      showTools(makeAction(window, "Werkzeugleiste", "20141 &Werkzeugleiste")),
      showStatus(makeAction(window, "Statusleiste", "20142 &Statusleiste")),
      showFilter(makeAction(window, "Filteranzeigen", "20143 &Filter")),
      reload(makeAction(window, "Neuladen", "20144 Listen &neu laden", Qt::Key_F5)),
      shortcuts(makeAction(window, "Tastenkuerzel", "20163 &Tastenkürzel", Qt::Key_F1)),
      tools(new QToolBar(&window)), all{quit,      undo, redo,      copy,       selectAll,  mark,   unmark,   markAll,
                                        unmarkAll, find, showTools, showStatus, showFilter, reload, shortcuts}
{
    quit->setMenuRole(QAction::QuitRole);
    for (QAction *shown : {showTools, showStatus, showFilter}) {
        shown->setCheckable(true);
        shown->setChecked(true);
    }
    giveToolButton(undo, LineIcon::Undo, "20207Rückgängig", "20227Die letzte Änderung der Markierungen zurücknehmen");
    giveToolButton(redo, LineIcon::Redo, "20208Wiederherstellen", "20228Die zurückgenommene Änderung wieder ausführen");
    giveToolButton(reload, LineIcon::Reload, "20209Neu laden", "20229Beide Listen neu laden");
    giveToolButton(quit, LineIcon::Quit, "20211Beenden", "20231Das Programm beenden");
    find->setIcon(lineIcon(LineIcon::Find));
    copy->setIcon(lineIcon(LineIcon::Copy));
    mark->setIcon(lineIcon(LineIcon::Right));
    unmark->setIcon(lineIcon(LineIcon::Left));
    markAll->setIcon(lineIcon(LineIcon::AllRight));
    unmarkAll->setIcon(lineIcon(LineIcon::AllLeft));
    shortcuts->setIcon(lineIcon(LineIcon::Keyboard));
    makeMenus(window);
    makeToolBar(window);
}

void MainActions::makeMenus(QMainWindow &window)
{
    makeMenu(window, "20100 &Statistik", {quit});
    makeMenu(window, "20120 &Bearbeiten",
             {undo, redo, nullptr, mark, unmark, markAll, unmarkAll, nullptr, copy, selectAll, nullptr, find});
    makeMenu(window, "20140 &Ansicht", {showTools, showStatus, showFilter, nullptr, reload});
    makeMenu(window, "20160 &Hilfe", {shortcuts});
}

void MainActions::makeToolBar(QMainWindow &window)
{
    tools->setObjectName(QStringLiteral("Werkzeuge"));
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    language::setDesignText(tools, QStringLiteral("20141 &Werkzeugleiste"));
    tools->addActions({undo, redo});
    tools->addSeparator();
    tools->addAction(reload);
    tools->addSeparator();
    tools->addAction(quit);
    window.addToolBar(tools);
}

} // namespace kalvenor::app
