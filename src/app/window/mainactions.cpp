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

namespace {

void giveToolButton(QAction *action, desktop::LineIcon icon, const char *caption, const char *tooltip)
{
    action->setIcon(desktop::lineIcon(icon));
    language::setDesignToolCaption(action, QString::fromUtf8(caption));
    language::setDesignText(action, {}, QString::fromUtf8(tooltip));
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

QAction *MainActions::make(const char *name, const char *caption, const QKeySequence &keys)
{
    auto *action = new QAction(&m_window);
    action->setObjectName(QLatin1String(name));
    language::setDesignText(action, QString::fromUtf8(caption));
    action->setShortcut(keys);
    all << action;
    return action;
}

QMenu *MainActions::makeMenu(const char *caption, const QList<QAction *> &actions)
{
    auto *menu = m_window.menuBar()->addMenu(QString());
    language::setDesignText(menu, QString::fromUtf8(caption));
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
    openTemplate = make("oeffnen", "20102 Vorlage ö&ffnen ...", Qt::CTRL | Qt::Key_O);
    saveTemplate = make("speichern", "20104 Vorlage &speichern", Qt::CTRL | Qt::Key_S);
    saveTemplateAs = make("speichernunter", "20105 Vorlage speichern &unter ...", Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    reset = make("loeschen", "20106 &Zurücksetzen");
    database = make("Familiewaehlen", "20107 &Familiendatenbank wählen ...");
    preview = make("Seitenansicht", "20108 Seiten&ansicht ...", Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    print = make("drucken", "20109 &Drucken ...", Qt::CTRL | Qt::Key_P);
    exportFile = make("exportieren", "20111 Als PDF, RTF oder HTML s&peichern ...", Qt::CTRL | Qt::SHIFT | Qt::Key_E);
    settings = make("Druckeinstellungen", "20110 Druck&einstellungen ...");
    quit = make("Beenden", "20112 &Beenden", Qt::CTRL | Qt::Key_Q);
    quit->setMenuRole(QAction::QuitRole);
    giveToolButton(openTemplate, desktop::LineIcon::Open, "20201Öffnen", "20221Eine gespeicherte Vorlage öffnen");
    giveToolButton(saveTemplate, desktop::LineIcon::Save, "20202Speichern", "20222Die Statistik als Vorlage speichern");
    giveToolButton(reset, desktop::LineIcon::Reset, "20203Zurücksetzen",
                   "20223Titel, Einleitung und Grafik zurücksetzen");
    giveToolButton(preview, desktop::LineIcon::Preview, "20204Vorschau", "20224Die Seiten vor dem Drucken ansehen");
    giveToolButton(print, desktop::LineIcon::Print, "20205Drucken", "20225Die Statistik drucken");
    giveToolButton(settings, desktop::LineIcon::Sliders, "20206Einstellungen",
                   "20226Schriften, Farben und Ränder einstellen");
    giveToolButton(quit, desktop::LineIcon::Quit, "20211Beenden", "20231Das Programm beenden");

    QMenu *menu = makeMenu("20100 &Statistik", {openTemplate});
    recent = menu->addMenu(QString());
    recent->setObjectName(u"Zuletzt"_s);
    language::setDesignText(recent, u"20103 Zuletzt &benutzte Vorlagen"_s);
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
    undo = make("Rueckgaengig", "20121 &Rückgängig", Qt::CTRL | Qt::Key_Z);
    redo = make("Wiederherstellen", "20122 &Wiederherstellen", Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    copy = make("Kopieren", "20128 &Kopieren", Qt::CTRL | Qt::Key_C);
    copy->setShortcutContext(Qt::WidgetShortcut); // chart, age list and text have a copying of their own
    selectAll = make("Allesauswaehlen", "20131 &Alles auswählen");
    mark = make("Markieren", "20123 Person &markieren", Qt::CTRL | Qt::Key_M);
    unmark = make("Aufheben", "20124 Markierung &aufheben", Qt::CTRL | Qt::Key_D);
    markAll = make("Allemarkieren", "20125 A&lle markieren", Qt::CTRL | Qt::SHIFT | Qt::Key_M);
    unmarkAll = make("Alleaufheben", "20126 Alle Markierungen auf&heben", Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    find = make("Suchen", "20127 &Person suchen", Qt::CTRL | Qt::Key_F);
    giveToolButton(undo, desktop::LineIcon::Undo, "20207Rückgängig",
                   "20227Die letzte Änderung der Markierungen zurücknehmen");
    giveToolButton(redo, desktop::LineIcon::Redo, "20208Wiederherstellen",
                   "20228Die zurückgenommene Änderung wieder ausführen");
    find->setIcon(desktop::lineIcon(desktop::LineIcon::Find));
    copy->setIcon(desktop::lineIcon(desktop::LineIcon::Copy));
    mark->setIcon(desktop::lineIcon(desktop::LineIcon::Right));
    unmark->setIcon(desktop::lineIcon(desktop::LineIcon::Left));
    markAll->setIcon(desktop::lineIcon(desktop::LineIcon::AllRight));
    unmarkAll->setIcon(desktop::lineIcon(desktop::LineIcon::AllLeft));
    makeMenu("20120 &Bearbeiten",
             {undo, redo, nullptr, mark, unmark, markAll, unmarkAll, nullptr, copy, selectAll, nullptr, find});
}

void MainActions::makeView()
{
    introduction = make("Einleitungzeigen", "20146 &Einleitung", Qt::ALT | Qt::Key_1);
    chart = make("Grafikzeigen", "20147 &Grafik", Qt::ALT | Qt::Key_2);
    ageList = make("Alterslistezeigen", "20148 A&ltersliste", Qt::ALT | Qt::Key_3);
    showTools = make("Werkzeugleiste", "20141 &Werkzeugleiste");
    showStatus = make("Statusleiste", "20142 &Statusleiste");
    showFilter = make("Filteranzeigen", "20143 &Filter");
    reload = make("Neuladen", "20144 Listen &neu laden", Qt::Key_F5);
    for (QAction *shown : {showTools, showStatus, showFilter}) {
        shown->setCheckable(true);
        shown->setChecked(true);
    }
    giveToolButton(reload, desktop::LineIcon::Reload, "20209Neu laden", "20229Beide Listen neu laden");
    makeMenu("20140 &Ansicht",
             {introduction, chart, ageList, nullptr, showTools, showStatus, showFilter, nullptr, reload});
}

void MainActions::makeHelp()
{
    manual = make("Anleitung", "20161 &Anleitung", Qt::Key_F1);
    shortcuts = make("Tastenkuerzel", "20163 &Tastenkürzel", Qt::CTRL | Qt::Key_F1);
    about = make("Ueber", "20162 Ü&ber Kalvenor ...");
    about->setMenuRole(QAction::AboutRole);
    giveToolButton(manual, desktop::LineIcon::Help, "20210Hilfe", "20230Die Anleitung zeigen");
    shortcuts->setIcon(desktop::lineIcon(desktop::LineIcon::Keyboard));
    makeMenu("20160 &Hilfe", {manual, shortcuts, nullptr, about});
}

void MainActions::makeToolBar()
{
    tools->setObjectName(u"Werkzeuge"_s);
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    language::setDesignText(tools, u"20141 &Werkzeugleiste"_s);
    tools->addActions({openTemplate, saveTemplate, reset});
    tools->addSeparator();
    tools->addActions({preview, print, settings});
    tools->addSeparator();
    tools->addActions({undo, redo, reload});
    tools->addSeparator();
    tools->addActions({manual, quit});
    m_window.addToolBar(tools);
}

} // namespace kalvenor::app
