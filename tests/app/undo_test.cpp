// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/openwindow.h"
#include <random>

using namespace kalvenor;
using namespace kalvenor::test;

TEST(Undo, RestoresExactlyWhatChanged)
{
    auto persons = smallFamily();
    persons[1].marked = persons[6].marked = true;
    OpenWindow open(persons);
    auto &undo = open.control<QAction>("Rueckgaengig");
    auto &redo = open.control<QAction>("Wiederherstellen");
    EXPECT_FALSE(undo.isEnabled());
    open.click<QToolButton>("RMA");
    open.select(PersonList::Marked, {4});
    open.click<QToolButton>("RM2");
    EXPECT_EQ(open.marked(), (Counters{1, 2, 3, 5, 6, 7}));

    undo.trigger();
    EXPECT_EQ(open.marked(), (Counters{1, 2, 3, 4, 5, 6, 7}));
    undo.trigger();
    EXPECT_EQ(open.marked(), (Counters{2, 7})) << "those marked before stay so";
    EXPECT_FALSE(undo.isEnabled());
    QTest::keyClick(&open.view(PersonList::Marked), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(open.marked(), (Counters{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_TRUE(redo.isEnabled());
    open.select(PersonList::Marked, {1});
    open.click<QToolButton>("RM2");
    EXPECT_FALSE(redo.isEnabled()) << "another way was taken";
    QTest::keyClick(&open.view(PersonList::Marked), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(open.marked().size(), 7U);
}

TEST(Undo, ACancelledActionLeavesListsAsTheFileIs)
{
    auto persons = manyPersons(3000);
    for (std::size_t i = 0; i < persons.size(); i += 3)
        persons[i].marked = true;
    OpenWindow open(persons);
    const Counters before = open.marked();
    desktop::Work &work = open.controller().work();
    QObject::connect(&work, &desktop::Work::began, &work,
                     &desktop::Work::cancel); // pressed as soon as there is something to cancel
    open.click<QToolButton>("RMA");
    QObject::disconnect(&work, &desktop::Work::began, &work, &desktop::Work::cancel);
    EXPECT_TRUE(open.desktop.messages.empty()) << "who cancels knows";
    EXPECT_EQ(open.statusText(), "Abgebrochen");
    EXPECT_EQ(open.shown(PersonList::Marked), open.marked());
    open.controller().undo();
    EXPECT_EQ(open.marked(), before);
}

TEST(Window, ListsAndDatabaseStayOneThroughRandomActions)
{
    std::vector<TestPerson> persons;
    for (qint32 i = 1; i <= 120; ++i)
        persons.push_back({.counter = i * 3,
                           .listname = QString("%1, %2").arg(QChar(u'A' + i % 26)).arg(i),
                           .marked = i % 5 == 0,
                           .sex = i % 2 == 0 ? "W" : "M",
                           .father = i > 20 ? (i % 20 + 1) * 3 : 0});
    OpenWindow open(persons);
    std::mt19937 random(7);
    const auto upTo = [&random](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    const Counters before = open.marked();
    for (int action = 0; action < 300; ++action) {
        const auto list = upTo(2) == 0 ? PersonList::Unmarked : PersonList::Marked;
        auto &view = open.view(list);
        const int count = open.controller().model(list).rowCount();
        switch (upTo(8)) {
        case 0:
        case 1:
        case 2:
            if (count > 0) {
                const int first = upTo(count);
                view.selectionModel()->select(QItemSelection(view.model()->index(first, 0),
                                                             view.model()->index(std::min(count - 1, first + 3), 0)),
                                              QItemSelectionModel::ClearAndSelect);
            }
            open.window->selectionPanel().moveSelected(list);
            break;
        case 3:
            open.controller().move(list, view.selectedCounters(), {upTo(2) == 0, upTo(2) == 0});
            break;
        case 4:
            open.window->selectionPanel().moveAll(list);
            break;
        case 5:
            open.controller().filter({.Presse = QString(QChar(u'a' + upTo(26))),
                                      .Geschlechtfilter = {upTo(2), upTo(2)},
                                      .Filterliste = list},
                                     upTo(2) == 0);
            break;
        case 6:
            open.controller().undo();
            break;
        default:
            if (upTo(2) == 0)
                open.controller().redo();
            else
                open.controller().clearFilter();
        }
        ASSERT_EQ(open.shown(PersonList::Unmarked), open.inFile(open.controller().query(PersonList::Unmarked)));
        ASSERT_EQ(open.shown(PersonList::Marked), open.inFile(open.controller().query(PersonList::Marked)));
    }
    while (open.controller().canUndo())
        open.controller().undo();
    EXPECT_EQ(open.marked(), before);
    EXPECT_TRUE(open.desktop.messages.empty());
}
