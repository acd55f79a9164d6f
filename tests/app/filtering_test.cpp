// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/openwindow.h"
#include <QRadioButton>

using namespace kalvenor;
using namespace kalvenor::test;

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
    const PersonList left = PersonList::Unmarked;
    const struct {
        std::vector<std::pair<const char *, const char *>> steps; ///< what is typed, or nothing where a box is ticked
        PersonList list;
        Counters shown;
    } rows[] = {
        {{{"Presse", "d"}}, left, {1, 4}},
        {{{"Geschlechtfilter_0", ""}}, left, {1, 3, 7}},
        {{{"Geschlechtfilter_1", ""}}, left, {2, 4}},
        {{{"Geschlechtfilter_0", ""}, {"Geschlechtfilter_1", ""}}, left, {1, 2, 3, 4, 7}},
        {{{"Filterliste_1", ""}, {"Presse", "falk"}}, PersonList::Marked, {6}},
        {{{"Datumfilter_0", ""}, {"Presse_Datum_0", "01011900"}}, left, {7}},
        {{{"Datumfilter_1", ""}, {"Presse_Datum_1", "01011900"}}, left, {1}},
        {{{"Datumfilter_2", ""}, {"Presse_Datum_0", "01012008"}}, left, {7}},
        {{{"Datumfilter_2", ""}, {"Presse_Datum_0", "0101"}}, left, {1, 2, 3, 4, 7}},
    };
    int number = 0;
    for (const auto &row : rows) {
        SCOPED_TRACE(++number);
        OpenWindow open(twoMarked());
        for (const auto &[control, text] : row.steps)
            *text == '\0' ? open.click<QAbstractButton>(control) : open.type(control, text);
        EXPECT_TRUE(soon([&] { return open.controller().isFiltered(row.list) && open.shown(row.list) == row.shown; }));
        for (const PersonList list : {PersonList::Unmarked, PersonList::Marked}) {
            const auto &load = open.control<QToolButton>(QString("Ladepersonenliste_%1").arg(static_cast<int>(list)));
            EXPECT_EQ(load.isChecked(), list == row.list);
            EXPECT_EQ(load.text(), list == row.list ? "Filter Liste" : "Liste neu laden");
        }
    }
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
        {basic::DateOrder::DayMonthYear, "31021950", "TT-MM-JJJJ"},
        {basic::DateOrder::DayMonthYear, "0102", "TT-MM-JJJJ"},
        {basic::DateOrder::MonthDayYear, "", "MM-TT-JJJJ"},
        {basic::DateOrder::MonthDayYear, "01021950", "2. Januar 1950"},
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

TEST(Filtering, DatesAreMeantForTheBirthUnlessSaidOtherwise)
{
    OpenWindow open(smallFamily());
    open.window->selectionPanel().filterPanel().setUnfolded(true);
    const auto &bound = open.control<QLineEdit>("Presse_Datum_0");
    const auto &problem = open.control<QLabel>("Datumsproblem");
    EXPECT_EQ(bound.displayText(), "__-__-____");
    open.type("Presse_Datum_0", "3x1");
    EXPECT_EQ(bound.displayText(), "31-__-____");
    EXPECT_FALSE(problem.isVisible()) << "it is still being typed";
    open.type("Presse_Datum_0", "99999999");
    EXPECT_TRUE(problem.isVisible());
    EXPECT_TRUE(problem.text().contains("99-99-9999")) << problem.text().toStdString();
    EXPECT_FALSE(open.control<QCheckBox>("Datumfilter_0").isChecked());
    open.type("Presse_Datum_0", "01011900");
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
    open.type("Presse", "a"); // the pause is not over when the button is pressed
    open.click<QToolButton>("RMA");
    EXPECT_EQ(open.marked(), (Counters{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(open.shown(PersonList::Unmarked), Counters{});

    open.click<QRadioButton>("Filterliste_1");
    open.control<QLineEdit>("Presse").clear();
    open.type("Presse", "claus");
    open.click<QToolButton>("RM2A");
    EXPECT_EQ(open.marked(), (Counters{1, 2, 4, 5, 6}));
}

TEST(Filtering, WhatWasTypedAMomentAgoCountsForTheNextMove)
{
    {
        OpenWindow open(smallFamily());
        open.type("Presse", "x'");
        open.trigger("Allemarkieren");
        EXPECT_TRUE(open.marked().empty()) << "a refused filter must not mark everybody";
        EXPECT_TRUE(open.control<QLabel>("Filterproblem").text().contains("x?"));
    }
    for (const bool atOnce : {true, false}) {
        OpenWindow open(smallFamily());
        open.select(PersonList::Unmarked, {3});
        open.type("Presse", "Dorn");
        if (atOnce) {
            open.trigger("Markieren");
            EXPECT_EQ(open.marked(), Counters{3}) << "who was selected, not who comes into its place";
        } else {
            ASSERT_TRUE(soon([&] { return open.shown(PersonList::Unmarked) == Counters{4}; }));
            EXPECT_FALSE(open.window->selectionPanel().hasSelection(PersonList::Unmarked));
        }
    }
}

TEST(Filtering, ARefusedFilterIsToldAndHoldsTheListBackUntilBothAgree)
{
    OpenWindow open(twoMarked());
    auto &name = open.control<QLineEdit>("Presse");
    const auto &problem = open.control<QLabel>("Filterproblem");
    const auto enter = [&](const QString &text) {
        name.clear();
        open.type("Presse", text);
        QTest::keyClick(&name, Qt::Key_Return);
    };
    const auto usable = [&](PersonList list) {
        return open.view(list).isEnabled();
    };
    enter("d");
    open.select(PersonList::Unmarked, {1});
    for (const QString text : {"[a", "x' OR 1=1 --", "'; DROP TABLE Daten", "O'Brien"}) {
        SCOPED_TRACE(text.toStdString());
        enter(text);
        EXPECT_TRUE(problem.isVisible());
        EXPECT_TRUE(problem.text().contains(text == "[a" ? "Klammer" : "?")) << problem.text().toStdString();
        EXPECT_EQ(name.accessibleDescription(), problem.text());
        EXPECT_EQ(name.text(), text);
        EXPECT_FALSE(usable(PersonList::Unmarked));
        EXPECT_TRUE(usable(PersonList::Marked));
        EXPECT_EQ(open.shown(PersonList::Unmarked), (Counters{1, 4}));
        EXPECT_TRUE(open.desktop.messages.empty());
    }
    for (const char *action : {"Allemarkieren", "Markieren"}) {
        open.trigger(action);
        EXPECT_EQ(open.marked(), (Counters{5, 6})) << action;
        EXPECT_TRUE(open.statusText().startsWith("Nichts geändert")) << open.statusText().toStdString();
    }
    open.click<QToolButton>("RM2A"); // the other list shows what it should
    EXPECT_EQ(open.marked(), Counters{});

    const std::function<void()> ways[] = {
        [&] { enter("brien"); },
        [&] { open.click<QAbstractButton>("Filteraufheben"); },
        [&] { open.click<QAbstractButton>("Ladepersonenliste_0"); },
    };
    for (const auto &way : ways) {
        enter("O'Brien");
        EXPECT_FALSE(usable(PersonList::Unmarked));
        way();
        EXPECT_TRUE(usable(PersonList::Unmarked));
    }
    open.trigger("Allemarkieren");
    EXPECT_EQ(open.marked().size(), 7U);
}

TEST(Filtering, AListComesBackFromEmptyAtItsTop)
{
    OpenWindow open(manyPersons(200));
    open.controller().filter({.Presse = "niemand"});
    ASSERT_TRUE(open.shown(PersonList::Unmarked).empty());
    open.controller().clearFilter();
    EXPECT_EQ(open.view(PersonList::Unmarked).indexAt(QPoint(5, 5)).row(), 0);
}
