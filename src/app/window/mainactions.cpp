// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/mainactions.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

void giveToolButton(QAction *action, desktop::LineIcon icon, Text caption, Text tooltip)
{
    action->setIcon(desktop::lineIcon(icon));
    language::setDesignToolCaption(action, caption);
    language::setDesignText(action, {}, tooltip);
}

} // namespace

MainActions::MainActions(QMainWindow &window) : tools(new QToolBar(&window)), m_window(window)
{
    makeStatistic();
    makeEdit();
    makeView();
    makeHelp();
    makeToolBar();
}

QAction *MainActions::make(const char *name, Text caption, const QKeySequence &keys)
{
    auto *action = new QAction(&m_window);
    action->setObjectName(QLatin1String(name));
    language::setDesignText(action, caption);
    action->setShortcut(keys);
    all << action;
    return action;
}

QMenu *MainActions::makeMenu(Text caption, const QList<QAction *> &actions)
{
    auto *menu = m_window.menuBar()->addMenu(QString());
    language::setDesignText(menu, caption);
    for (QAction *action : actions) {
        if (action == nullptr)
            menu->addSeparator();
        else
            menu->addAction(action);
    }
    return menu;
}

void MainActions::makeStatistic()
{
    openTemplate = make("oeffnen", Text::MenuOpenTemplate, Qt::CTRL | Qt::Key_O);
    saveTemplate = make("speichern", Text::MenuSaveTemplate, Qt::CTRL | Qt::Key_S);
    saveTemplateAs = make("speichernunter", Text::MenuSaveTemplateAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    reset = make("loeschen", Text::MenuReset);
    database = make("Familiewaehlen", Text::MenuChooseFamily);
    preview = make("Seitenansicht", Text::MenuPreview, Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    print = make("drucken", Text::MenuPrint, Qt::CTRL | Qt::Key_P);
    exportFile = make("exportieren", Text::MenuExport, Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    settings = make("Druckeinstellungen", Text::MenuPrintSettings);
    quit = make("Beenden", Text::MenuQuit, Qt::CTRL | Qt::Key_Q);
    quit->setMenuRole(QAction::QuitRole);
    giveToolButton(openTemplate, desktop::LineIcon::Open, Text::OpenTemplate, Text::ToolOpenTip);
    giveToolButton(saveTemplate, desktop::LineIcon::Save, Text::ToolSave, Text::ToolSaveTip);
    reset->setIcon(desktop::lineIcon(desktop::LineIcon::Reset));
    giveToolButton(preview, desktop::LineIcon::Preview, Text::PrintPreview, Text::ToolPreviewTip);
    giveToolButton(print, desktop::LineIcon::Print, Text::ToolPrint, Text::ToolPrintTip);
    giveToolButton(settings, desktop::LineIcon::Sliders, Text::PrintSettings, Text::ToolSettingsTip);
    giveToolButton(exportFile, desktop::LineIcon::Export, Text::ToolExport, Text::ToolExportTip);
    quit->setIcon(desktop::lineIcon(desktop::LineIcon::Quit));

    QMenu *menu = makeMenu(Text::MenuStatistic, {openTemplate});
    recent = menu->addMenu(QString());
    recent->setObjectName(u"Zuletzt"_s);
    language::setDesignText(recent, Text::MenuRecentTemplates);
    menu->addActions({saveTemplate, saveTemplateAs, reset});
    menu->addSeparator();
    menu->addAction(database);
    menu->addSeparator();
    menu->addActions({preview, print, exportFile, settings});
    menu->addSeparator();
    menu->addAction(quit);
}

void MainActions::makeEdit()
{
    undo = make("Rueckgaengig", Text::MenuUndo, Qt::CTRL | Qt::Key_Z);
    redo = make("Wiederherstellen", Text::MenuRedo, Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    copy = make("Kopieren", Text::MenuCopy, Qt::CTRL | Qt::Key_C);
    copy->setShortcutContext(Qt::WidgetShortcut); // chart, age list and text have a copying of their own
    selectAll = make("Allesauswaehlen", Text::MenuSelectAll, Qt::CTRL | Qt::Key_A);
    selectAll->setShortcutContext(Qt::WidgetShortcut); // entry fields select all of their own
    mark = make("Markieren", Text::MenuMarkPerson, Qt::CTRL | Qt::Key_M);
    unmark = make("Aufheben", Text::MenuUnmarkPerson, Qt::CTRL | Qt::Key_D);
    markAll = make("Allemarkieren", Text::MenuMarkAll, Qt::CTRL | Qt::SHIFT | Qt::Key_M);
    unmarkAll = make("Alleaufheben", Text::MenuUnmarkAll, Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    find = make("Suchen", Text::MenuFindPerson, Qt::CTRL | Qt::Key_F);
    giveToolButton(undo, desktop::LineIcon::Undo, Text::Undo, Text::ToolUndoTip);
    giveToolButton(redo, desktop::LineIcon::Redo, Text::Redo, Text::ToolRedoTip);
    find->setIcon(desktop::lineIcon(desktop::LineIcon::Find));
    copy->setIcon(desktop::lineIcon(desktop::LineIcon::Copy));
    mark->setIcon(desktop::lineIcon(desktop::LineIcon::Right));
    unmark->setIcon(desktop::lineIcon(desktop::LineIcon::Left));
    markAll->setIcon(desktop::lineIcon(desktop::LineIcon::AllRight));
    unmarkAll->setIcon(desktop::lineIcon(desktop::LineIcon::AllLeft));
    makeMenu(Text::MenuEdit,
             {undo, redo, nullptr, mark, unmark, markAll, unmarkAll, nullptr, copy, selectAll, nullptr, find});
}

void MainActions::makeView()
{
    introduction = make("Einleitungzeigen", Text::MenuIntroduction, Qt::ALT | Qt::Key_1);
    chart = make("Grafikzeigen", Text::MenuChart, Qt::ALT | Qt::Key_2);
    ageList = make("Alterslistezeigen", Text::MenuAgeList, Qt::ALT | Qt::Key_3);
    showTools = make("Werkzeugleiste", Text::MenuToolBar);
    showStatus = make("Statusleiste", Text::MenuStatusBar);
    showFilter = make("Filteranzeigen", Text::MenuFilter, Qt::CTRL | Qt::SHIFT | Qt::Key_F);
    reload = make("Neuladen", Text::MenuReloadLists, Qt::Key_F5);
    for (QAction *shown : {showTools, showStatus, showFilter}) {
        shown->setCheckable(true);
        shown->setChecked(shown != showFilter);
    }
    reload->setIcon(desktop::lineIcon(desktop::LineIcon::Reload));
    makeMenu(Text::MenuView,
             {introduction, chart, ageList, nullptr, showTools, showStatus, showFilter, nullptr, reload});
}

void MainActions::makeHelp()
{
    manual = make("Anleitung", Text::MenuManual, Qt::Key_F1);
    shortcuts = make("Tastenkuerzel", Text::MenuShortcuts, Qt::CTRL | Qt::Key_F1);
    about = make("Ueber", Text::MenuAbout);
    about->setMenuRole(QAction::AboutRole);
    giveToolButton(manual, desktop::LineIcon::Help, Text::ToolHelp, Text::ToolHelpTip);
    shortcuts->setIcon(desktop::lineIcon(desktop::LineIcon::Keyboard));
    makeMenu(Text::MenuHelp, {manual, shortcuts, nullptr, about});
}

void MainActions::makeToolBar()
{
    tools->setObjectName(u"Werkzeuge"_s);
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    language::setDesignText(tools, Text::MenuToolBar);
    tools->addActions({openTemplate, saveTemplate});
    tools->addSeparator();
    tools->addActions({preview, print, exportFile, settings});
    tools->addSeparator();
    tools->addActions({undo, redo});
    auto *gap = new QWidget(tools);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tools->addWidget(gap);
    tools->addAction(manual);
    m_window.addToolBar(tools);
}

} // namespace kalvenor::app
