// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filterpanel.h"
#include "support/openwindow.h"
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace kalvenor;
using namespace kalvenor::test;
using Counters = std::vector<qint32>;

namespace {

template <typename Condition>
bool soon(Condition condition)
{
    return QTest::qWaitFor(condition, 5000);
}

std::vector<TestPerson> twoMarked()
{
    auto persons = smallFamily();
    persons[4].marked = persons[5].marked = true;
    return persons;
}

} // namespace

TEST(Filtering, EachControlNarrowsTheList)
{
    const auto type = [](const char *name, const QString &text) {
        return [=](OpenWindow &open) {
            auto &entry = open.control<QLineEdit>(name);
            entry.setFocus();
            entry.setCursorPosition(0);
            QTest::keyClicks(&entry, text);
        };
    };
    const auto tick = [](const char *name) {
        return [=](OpenWindow &open) {
            open.click<QAbstractButton>(name);
        };
    };
    const struct {
        std::vector<std::function<void(OpenWindow &)>> steps;
        const char *where; ///< the query's part between the name's clause and the mark's
        const char *pattern;
        PersonList list;
        Counters shown;
    } rows[] = {
        {{type("Presse", "d")}, "", "*d*", PersonList::Unmarked, {1, 4}},
        {{type("Presse", "D*")}, "", "*D*", PersonList::Unmarked, {1, 4}},
        {{tick("Geschlechtfilter_0")}, "AND Geschlecht = 'M' ", "**", PersonList::Unmarked, {1, 3, 7}},
        {{tick("Geschlechtfilter_1")}, "AND Geschlecht = 'W' ", "**", PersonList::Unmarked, {2, 4}},
        {{tick("Geschlechtfilter_0"), tick("Geschlechtfilter_1")}, "", "**", PersonList::Unmarked, {1, 2, 3, 4, 7}},
        {{tick("Filterliste_1"), type("Presse", "falk")}, "", "*falk*", PersonList::Marked, {6}},
        {{tick("Datumfilter_0"), type("Presse_Datum_0", "01011900")},
         "  AND Geburtsdatum >= 2 AND ( Geburt_XX = 'XXX_______' OR geburtsdatum <= 767011 ) ",
         "**",
         PersonList::Unmarked,
         {7}},
        {{tick("Datumfilter_1"), type("Presse_Datum_1", "01011900")},
         " AND ( sterbe_XX = 'XXX_______' OR sterbedatum >= -620910 ) AND sterbedatum <= 2",
         "**",
         PersonList::Unmarked,
         {1}},
        {{tick("Datumfilter_2"), type("Presse_Datum_0", "01012008")},
         "  AND geaendert >= 39448",
         "**",
         PersonList::Unmarked,
         {7}},
        {{tick("Datumfilter_2"), type("Presse_Datum_0", "0101")}, "", "**", PersonList::Unmarked, {1, 2, 3, 4, 7}},
    };
    int number = 0;
    for (const auto &row : rows) {
        SCOPED_TRACE(++number);
        for (const bool byReturn : {false, true}) {
            OpenWindow open(twoMarked());
            for (const auto &step : row.steps)
                step(open);
            const QString mark = row.list == PersonList::Unmarked ? "0" : "-1";
            const QString query = QString("SELECT * FROM Daten WHERE Listname LIKE '%1' %2 AND Markierung = %3 "
                                          "ORDER BY Listname;")
                                      .arg(row.pattern, row.where, mark);
            const QString typed = open.control<QLineEdit>("Presse").text();
            if (byReturn)
                QTest::keyClick(&open.control<QLineEdit>("Presse"), Qt::Key_Return);
            EXPECT_TRUE(soon([&] { return open.controller().query(row.list) == query; }))
                << open.controller().query(row.list).toStdString();
            EXPECT_EQ(open.shown(row.list), row.shown);
            const int place = static_cast<int>(row.list);
            EXPECT_EQ(open.control<QToolButton>(QString("Ladepersonenliste_%1").arg(place)).text(), "Filter Liste");
            EXPECT_TRUE(open.control<QToolButton>(QString("Ladepersonenliste_%1").arg(place)).isChecked());
            EXPECT_FALSE(open.control<QToolButton>(QString("Ladepersonenliste_%1").arg(1 - place)).isChecked());
            EXPECT_EQ(open.control<QLineEdit>("Presse").text(), byReturn ? row.pattern : typed);
        }
    }
}

TEST(Filtering, TheMaskShowsUnderscores)
{
    OpenWindow open(smallFamily());
    auto &bound = open.control<QLineEdit>("Presse_Datum_0");
    EXPECT_EQ(bound.displayText(), "__-__-____");
    bound.setFocus();
    bound.setCursorPosition(0);
    QTest::keyClicks(&bound, "3x1");
    EXPECT_EQ(bound.displayText(), "31-__-____");
}

TEST(Filtering, ShowsHowADateIsRead)
{
    const struct {
        basic::DateOrder order;
        const char *typed;
        QString read;
    } rows[] = {
        {basic::DateOrder::DayMonthYear, "", "TT-MM-JJJJ"},
        {basic::DateOrder::DayMonthYear, "01021950", "1. Februar 1950"},
        {basic::DateOrder::DayMonthYear, "02131950", "13. Februar 1950"},
        {basic::DateOrder::DayMonthYear, "31021950", "TT-MM-JJJJ"},
        {basic::DateOrder::DayMonthYear, "0102", "TT-MM-JJJJ"},
        {basic::DateOrder::MonthDayYear, "", "MM-TT-JJJJ"},
        {basic::DateOrder::MonthDayYear, "01021950", "2. Januar 1950"},
        {basic::DateOrder::MonthDayYear, "13021950", "13. Februar 1950"},
        {basic::DateOrder::MonthDayYear, "15060050", "15. Juni 1950"},
    };
    StartedProgram started;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.typed);
        selection::FilterPanel panel(started.program.language, row.order);
        auto *bound = panel.findChild<QLineEdit *>("Presse_Datum_1");
        bound->setCursorPosition(0);
        QTest::keyClicks(bound, row.typed);
        EXPECT_EQ(panel.findChild<QLabel *>("Gelesen_1")->text(), row.read);
        EXPECT_EQ(bound->toolTip().contains("Tag, Monat und Jahr"), row.order == basic::DateOrder::DayMonthYear);
    }
}

TEST(Filtering, UnsoundInputIsToldBesideIt)
{
    for (const QString text : {"O'Neil", "[a", "x' OR 1=1 --", "'; DROP TABLE Daten"}) {
        SCOPED_TRACE(text.toStdString());
        OpenWindow open(twoMarked());
        auto &name = open.control<QLineEdit>("Presse");
        name.setFocus();
        QTest::keyClicks(&name, "e");
        QTest::keyClick(&name, Qt::Key_Return);
        const Counters before = open.shown(PersonList::Unmarked);
        const QString query = open.controller().query(PersonList::Unmarked);
        name.clear();
        QTest::keyClicks(&name, text);
        QTest::keyClick(&name, Qt::Key_Return);
        const auto &problem = open.control<QLabel>("Filterproblem");
        EXPECT_TRUE(problem.isVisible());
        EXPECT_TRUE(problem.text().contains(text == "[a" ? "Klammer" : "?")) << problem.text().toStdString();
        EXPECT_EQ(name.accessibleDescription(), problem.text());
        EXPECT_FALSE(open.view(PersonList::Unmarked).isEnabled());
        EXPECT_EQ(open.shown(PersonList::Unmarked), before);
        EXPECT_EQ(open.controller().query(PersonList::Unmarked), query);
        EXPECT_EQ(name.text(), text);
        EXPECT_TRUE(open.desktop.messages.empty());
    }
}

TEST(Filtering, DatesAreMeantForTheBirthUnlessSaidOtherwise)
{
    OpenWindow open(smallFamily());
    open.window->selectionPanel().filterPanel().setUnfolded(true);
    const auto type = [&](const QString &text) {
        auto &bound = open.control<QLineEdit>("Presse_Datum_0");
        bound.setFocus();
        bound.setCursorPosition(0);
        QTest::keyClicks(&bound, text);
    };
    const auto &problem = open.control<QLabel>("Datumsproblem");
    type("0101");
    EXPECT_FALSE(problem.isVisible()) << "it is still being typed";
    type("99999999");
    EXPECT_TRUE(problem.isVisible());
    EXPECT_TRUE(problem.text().contains("99-99-9999")) << problem.text().toStdString();
    EXPECT_FALSE(open.control<QCheckBox>("Datumfilter_0").isChecked());
    type("01011900");
    EXPECT_FALSE(problem.isVisible());
    EXPECT_TRUE(open.control<QCheckBox>("Datumfilter_0").isChecked());
    EXPECT_TRUE(soon([&] { return open.shown(PersonList::Unmarked) == Counters{7}; }));
    open.click<QCheckBox>("Datumfilter_0");
    EXPECT_TRUE(problem.isVisible()) << "for which date?";
    open.click<QCheckBox>("Datumfilter_1");
    EXPECT_FALSE(problem.isVisible());
}

TEST(Filtering, FoldedConditionsAreChipsThatCanBeLifted)
{
    OpenWindow open(twoMarked());
    auto &filter = open.window->selectionPanel().filterPanel();
    filter.setUnfolded(true);
    open.click<QCheckBox>("Geschlechtfilter_1");
    open.click<QRadioButton>("Filterliste_1");
    EXPECT_EQ(open.control<QToolButton>("Mehrfilter").text(), "Filter (2)");
    EXPECT_EQ(open.window->findChild<QToolButton *>("Bedingung_0"), nullptr);
    filter.setUnfolded(false);
    EXPECT_EQ(open.control<QToolButton>("Bedingung_0").text().trimmed(), "Frauen");
    ASSERT_TRUE(soon([&] { return open.shown(PersonList::Marked) == Counters{6}; }));
    open.click<QToolButton>("Bedingung_0");
    EXPECT_FALSE(open.control<QCheckBox>("Geschlechtfilter_1").isChecked());
    EXPECT_TRUE(soon([&] { return open.shown(PersonList::Marked) == Counters{5, 6}; }));
    EXPECT_EQ(open.control<QToolButton>("Mehrfilter").text(), "Filter (1)");
    open.click<QToolButton>("Filterloesen_1");
    EXPECT_EQ(open.control<QToolButton>("Mehrfilter").text(), "Filter (1)") << "the list that a search acts on stays";
    EXPECT_FALSE(open.controller().isFiltered(PersonList::Marked));
}

TEST(Filtering, IsLiftedByItsButtonAndByTheListsButton)
{
    for (const QString button : {"Filteraufheben", "Ladepersonenliste_0"}) {
        SCOPED_TRACE(button.toStdString());
        OpenWindow open(twoMarked());
        open.click<QCheckBox>("Geschlechtfilter_1");
        ASSERT_TRUE(soon([&] { return open.controller().isFiltered(PersonList::Unmarked); }));
        open.click<QAbstractButton>(button);
        EXPECT_EQ(open.controller().query(PersonList::Unmarked), selection::plainListQuery(PersonList::Unmarked));
        EXPECT_EQ(open.shown(PersonList::Unmarked).size(), 5U);
        auto &load = open.control<QToolButton>("Ladepersonenliste_0");
        EXPECT_EQ(load.text(), "Liste neu laden");
        EXPECT_FALSE(load.isChecked());
        EXPECT_EQ(open.control<QCheckBox>("Geschlechtfilter_1").isChecked(), button != "Filteraufheben");
    }
}

TEST(Filtering, MarkAllMarksWhatTheFilterShows)
{
    OpenWindow open(twoMarked());
    auto &name = open.control<QLineEdit>("Presse");
    name.setFocus();
    QTest::keyClicks(&name, "a"); // the pause is not over when the button is pressed
    open.click<QToolButton>("RMA");
    EXPECT_EQ(open.marked(), (Counters{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(open.shown(PersonList::Unmarked), Counters{});

    open.click<QRadioButton>("Filterliste_1");
    name.clear();
    QTest::keyClicks(&name, "claus");
    open.click<QToolButton>("RM2A");
    EXPECT_EQ(open.marked(), (Counters{1, 2, 4, 5, 6}));
}

TEST(Filtering, WhatWasTypedAMomentAgoCountsForTheNextMove)
{
    const auto typeFast = [](OpenWindow &open, const QString &text) {
        auto &name = open.control<QLineEdit>("Presse");
        name.setFocus();
        QTest::keyClicks(&name, text);
    };
    {
        OpenWindow open(smallFamily());
        typeFast(open, "x'");
        open.control<QAction>("Allemarkieren").trigger();
        EXPECT_TRUE(open.marked().empty()) << "a refused filter must not mark everybody";
        EXPECT_TRUE(open.control<QLabel>("Filterproblem").text().contains("x?"));
    }
    {
        OpenWindow open(smallFamily());
        open.select(PersonList::Unmarked, {3});
        typeFast(open, "Dorn");
        open.control<QAction>("Markieren").trigger();
        EXPECT_EQ(open.marked(), Counters{3}) << "who was selected, not who comes into its place";
    }
    {
        OpenWindow open(smallFamily());
        open.select(PersonList::Unmarked, {3});
        typeFast(open, "Dorn");
        ASSERT_TRUE(soon([&] { return open.shown(PersonList::Unmarked) == Counters{4}; }));
        EXPECT_FALSE(open.window->selectionPanel().hasSelection(PersonList::Unmarked));
    }
}

TEST(Filtering, ARefusedFilterHoldsTheListBackUntilBothAgree)
{
    OpenWindow open(twoMarked());
    auto &name = open.control<QLineEdit>("Presse");
    const auto type = [&](const QString &text) {
        name.setFocus();
        name.clear();
        QTest::keyClicks(&name, text);
        QTest::keyClick(&name, Qt::Key_Return);
    };
    const auto usable = [&](PersonList list) {
        return open.view(list).isEnabled();
    };
    type("d");
    open.select(PersonList::Unmarked, {1});
    type("O'Brien");
    EXPECT_FALSE(usable(PersonList::Unmarked));
    EXPECT_TRUE(usable(PersonList::Marked));
    for (const char *action : {"Allemarkieren", "Markieren"}) {
        open.control<QAction>(action).trigger();
        EXPECT_EQ(open.marked(), (Counters{5, 6})) << action;
        EXPECT_TRUE(open.statusText().startsWith("Nichts geändert")) << open.statusText().toStdString();
    }
    open.click<QToolButton>("RM2A"); // the other list shows what it should
    EXPECT_EQ(open.marked(), Counters{});

    const std::function<void()> ways[] = {
        [&] { type("brien"); },
        [&] { open.click<QAbstractButton>("Filteraufheben"); },
        [&] { open.click<QAbstractButton>("Ladepersonenliste_0"); },
    };
    for (const auto &way : ways) {
        type("O'Brien");
        EXPECT_FALSE(usable(PersonList::Unmarked));
        way();
        EXPECT_TRUE(usable(PersonList::Unmarked));
    }
    open.control<QAction>("Allemarkieren").trigger();
    EXPECT_EQ(open.marked().size(), 7U);
}

TEST(Filtering, AListComesBackFromEmptyAtItsTop)
{
    std::vector<TestPerson> persons;
    for (qint32 i = 1; i <= 200; ++i)
        persons.push_back({.counter = i, .listname = QString("Person %1").arg(i, 3, 10, QChar(u'0'))});
    OpenWindow open(persons);
    open.controller().filter({.Presse = "niemand"});
    ASSERT_TRUE(open.shown(PersonList::Unmarked).empty());
    open.controller().clearFilter();
    auto &view = open.view(PersonList::Unmarked);
    EXPECT_EQ(view.indexAt(QPoint(5, 5)).row(), 0);
}
