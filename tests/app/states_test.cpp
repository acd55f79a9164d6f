// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckvorschau.h"
#include "support/openwindow.h"
#include <QElapsedTimer>
#include <QTextBrowser>

using namespace kalvenor;
using namespace kalvenor::test;

TEST(States, AReadOnlyDatabaseDisablesMarkingAndSaysWhyOnce)
{
    OpenWindow open(smallFamily(),
                    [](OpenWindow &made) { QFile::setPermissions(made.family(), QFile::ReadOwner | QFile::ReadUser); });
    const auto &banner = open.control<QWidget>("Schreibschutz");
    EXPECT_TRUE(banner.isVisible());
    EXPECT_TRUE(banner.findChild<QLabel *>()->text().contains("familie.mdb"));
    open.select(PersonList::Unmarked, {1});
    for (const char *button : {"RM", "RMA", "RM2", "RM2A"}) {
        EXPECT_FALSE(open.control<QToolButton>(button).isEnabled()) << button;
        EXPECT_TRUE(open.control<QToolButton>(button).toolTip().contains("nicht geändert")) << button;
    }
    for (const char *action : {"Markieren", "Aufheben", "Allemarkieren", "Alleaufheben"})
        EXPECT_FALSE(open.control<QAction>(action).isEnabled()) << action;
    EXPECT_FALSE(open.control<QCheckBox>("quellenpincl_0").isEnabled());
    EXPECT_FALSE(open.view(PersonList::Unmarked).dragEnabled());
    EXPECT_FALSE(open.control<QPushButton>("Weiter_1").isVisible()) << "no way on that leads nowhere";
    QTest::keyClick(&open.view(PersonList::Unmarked), Qt::Key_Return);
    EXPECT_TRUE(open.desktop.messages.empty());
    EXPECT_TRUE(open.statusText().contains("nicht geändert"));

    QFile::setPermissions(open.family(), QFile::ReadOwner | QFile::WriteOwner);
    open.click<QPushButton>("Erneutpruefen");
    EXPECT_FALSE(banner.isVisible());
    open.select(PersonList::Unmarked, {1});
    open.click<QToolButton>("RM");
    EXPECT_EQ(open.marked(), Counters{1});
}

TEST(States, WhatMakesNoSenseIsDisabledAndSaysWhy)
{
    OpenWindow open(smallFamily());
    for (const char *action : {"Seitenansicht", "drucken", "exportieren"}) {
        EXPECT_FALSE(open.control<QAction>(action).isEnabled()) << action;
        EXPECT_TRUE(open.control<QAction>(action).toolTip().contains("Markieren Sie")) << action;
    }
    auto &mark = open.control<QToolButton>("RM");
    EXPECT_FALSE(mark.isEnabled());
    EXPECT_TRUE(mark.toolTip().contains("Nicht markierte Personen")) << mark.toolTip().toStdString();
    EXPECT_TRUE(open.control<QToolButton>("RM2A").toolTip().contains("leer"));
    open.select(PersonList::Unmarked, {1});
    EXPECT_TRUE(mark.isEnabled());
    EXPECT_EQ(mark.toolTip(), "Person markieren");
    mark.click();
    EXPECT_TRUE(open.control<QAction>("drucken").isEnabled());
    EXPECT_FALSE(open.control<QAction>("drucken").toolTip().contains("Markieren Sie"));
}

TEST(States, EmptyListsSayWhyAndLeadOn)
{
    OpenWindow open(smallFamily());
    const auto says = [&](const char *list, const QString &text) {
        const QWidget &state = open.control<QWidget>(list);
        return state.isVisible() && state.findChild<QLabel *>()->text().contains(text);
    };
    EXPECT_TRUE(says("Leer_1", "Keine Person ist markiert"));
    EXPECT_EQ(open.control<QPushButton>("Weiter_1").text(), "Alle 7 markieren");
    open.click<QPushButton>("Weiter_1");
    EXPECT_EQ(open.marked().size(), 7U);
    EXPECT_TRUE(says("Leer_0", "Alle 7 Personen sind markiert"));
    open.click<QPushButton>("Weiter_0");
    EXPECT_EQ(open.marked(), Counters{});
    open.controller().filter({.Presse = "niemand"});
    EXPECT_TRUE(says("Leer_0", "passt zum Filter"));
    open.click<QPushButton>("Weiter_0");
    EXPECT_FALSE(open.controller().isFiltered(PersonList::Unmarked));
    EXPECT_FALSE(open.control<QWidget>("Leer_0").isVisible());
}

TEST(States, AMoveCanBeTakenBackWhereItIsTold)
{
    OpenWindow open(smallFamily());
    auto &takeBack = open.control<QToolButton>("Meldungrueckgaengig");
    EXPECT_FALSE(takeBack.isVisible());
    open.click<QToolButton>("RMA");
    EXPECT_EQ(open.statusText(), "Markiert: 7");
    EXPECT_TRUE(takeBack.isVisible());
    takeBack.click();
    EXPECT_EQ(open.marked(), Counters{});
    EXPECT_FALSE(takeBack.isVisible());
}

TEST(States, AllKeysAreListedFromTheActions)
{
    OpenWindow open(smallFamily());
    QString keys;
    open.desktop.dialogAnswer = [&](QDialog &dialog) {
        keys = dialog.findChild<QTextBrowser *>("Tastenliste")->toPlainText();
        return true;
    };
    open.trigger("Tastenkuerzel");
    for (const QAction *action : open.window->findChildren<QAction *>()) {
        const QString key =
            action->text().isEmpty() ? QString() : action->shortcut().toString(QKeySequence::NativeText);
        EXPECT_TRUE(keys.contains(key)) << action->text().toStdString();
    }
    for (const char *key : {"Ctrl+A", "Ctrl+Q", "F5"})
        EXPECT_TRUE(keys.contains(key) || keys.contains(QString(key).replace("Ctrl", "Strg"))) << key;
}

TEST(States, ProgressIsShownByTheWindowInFrontAlone)
{
    OpenWindow open(smallFamily());
    open.controller().moveAll(PersonList::Unmarked);
    open.trigger("Seitenansicht");
    settings::Druckvorschau *preview = open.window->report().preview();
    ASSERT_NE(preview, nullptr);
    preview->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preview));
    bool shown = false;
    open.controller().work().run("…", [&](const basic::Progress &progress) {
        QElapsedTimer clock;
        clock.start();
        while (!shown && clock.elapsed() < 5000) {
            progress(1, 2);
            shown = preview->findChild<QWidget *>("Fortschrittrahmen")->isVisible();
            EXPECT_FALSE(open.control<QWidget>("Fortschrittrahmen").isVisible());
        }
    });
    EXPECT_TRUE(shown);
}
