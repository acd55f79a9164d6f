// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/openwindow.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QScrollBar>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

void drop(OpenWindow &open, PersonList from, PersonList on)
{
    const std::unique_ptr<QMimeData> data(
        open.controller().model(from).mimeData(open.view(from).selectionModel()->selectedIndexes()));
    open.controller().model(on).dropMimeData(data.get(), Qt::MoveAction, -1, -1, {});
    QCoreApplication::processEvents();
}

} // namespace

TEST(Moving, EachWayMovesAndWritesTheMark)
{
    const PersonList left = PersonList::Unmarked;
    const PersonList right = PersonList::Marked;
    using Act = std::function<void(OpenWindow &)>;
    const auto key = [](PersonList list, Qt::Key pressed) -> Act {
        return [=](OpenWindow &open) {
            QTest::keyClick(&open.view(list), pressed);
        };
    };
    const auto button = [](const char *name, const char *relatives = nullptr) -> Act {
        return [=](OpenWindow &open) {
            if (relatives != nullptr)
                open.click<QCheckBox>(relatives);
            open.click<QToolButton>(name);
        };
    };
    const auto menu = [](const char *action) -> Act {
        return [=](OpenWindow &open) {
            open.trigger(action);
        };
    };
    const auto doubleClick = [](OpenWindow &open) {
        auto &view = open.view(PersonList::Unmarked);
        const QPoint first = view.visualRect(view.model()->index(0, 0)).center();
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, first);
    };
    const auto all = [](OpenWindow &open) {
        QTest::keyClick(&open.view(PersonList::Unmarked), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&open.view(PersonList::Unmarked), Qt::Key_Return);
    };
    const struct {
        const char *way;
        PersonList from;
        std::initializer_list<qint32> selected;
        Act act;
        Counters markedAfter; ///< 4 and 5 are marked before
    } rows[] = {
        {"double click", left, {1}, doubleClick, {1, 4, 5}},
        {"Return", left, {2, 7}, key(left, Qt::Key_Return), {2, 4, 5, 7}},
        {"Del", right, {4}, key(right, Qt::Key_Delete), {5}},
        {"Ctrl+A, Return", left, {1}, all, {1, 2, 3, 4, 5, 6, 7}},
        {"button, with children", left, {1}, button("RM", "quellenpincl_0"), {1, 3, 4, 5, 6}},
        {"button, with parents", left, {3}, button("RM", "quellenpincl_1"), {1, 2, 3, 4, 5}},
        {"button back", right, {5}, button("RM2"), {4}},
        {"all", left, {1}, button("RMA"), {1, 2, 3, 4, 5, 6, 7}},
        {"all back", right, {4}, button("RM2A"), {}},
        {"menu", left, {6}, menu("Markieren"), {4, 5, 6}},
        {"menu back", right, {4, 5}, menu("Aufheben"), {}},
        {"drop", left, {1, 3}, [=](OpenWindow &open) { drop(open, left, right); }, {1, 3, 4, 5}},
        {"drop back", right, {5}, [=](OpenWindow &open) { drop(open, right, left); }, {4}},
        {"drop on its own list", left, {1}, [=](OpenWindow &open) { drop(open, left, left); }, {4, 5}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.way);
        auto persons = smallFamily();
        persons[3].marked = persons[4].marked = true;
        OpenWindow open(persons);
        open.select(row.from, row.selected);
        row.act(open);
        EXPECT_EQ(open.marked(), row.markedAfter);
        EXPECT_EQ(open.shown(right), row.markedAfter);
        EXPECT_EQ(open.shown(left), open.inFile(selection::plainListQuery(left)));
        EXPECT_TRUE(open.desktop.messages.empty());
    }
}

TEST(Moving, SaysWhereTheWalkEndedAtTheLimit)
{
    auto persons = manyPersons(1200);
    for (std::size_t child = 1; child < persons.size(); ++child)
        persons[child].father = 1;
    OpenWindow open(persons);
    open.control<QCheckBox>("quellenpincl_0").setChecked(true);
    open.controller().move(PersonList::Unmarked, {1}, open.window->selectionPanel().relatives());
    ASSERT_EQ(open.desktop.messages.size(), 1U);
    EXPECT_EQ(open.desktop.messages[0].text, open.program.language.text(language::Text::RelativesLimitReached));
    EXPECT_EQ(open.desktop.messages[0].title, open.program.language.text(language::Text::MarkRelatives));
    EXPECT_EQ(open.marked().size(), 1001U) << "the marks stay";
}

TEST(Moving, TheNextPersonIsInHandAndTheMovedOneIsShown)
{
    OpenWindow open(manyPersons(500));
    auto &left = open.view(PersonList::Unmarked);
    open.select(PersonList::Unmarked, {250, 251});
    left.scrollTo(left.currentIndex(), QAbstractItemView::PositionAtTop);
    left.verticalScrollBar()->setValue(left.verticalScrollBar()->value() - 7);
    const auto pixelsAbove = [&] {
        return left.visualRect(left.currentIndex()).top();
    };
    const int before = pixelsAbove();
    QTest::keyClick(&left, Qt::Key_Return);
    EXPECT_EQ(left.selectedCounters(), Counters{252});
    EXPECT_EQ(pixelsAbove(), before) << "the list stays where it was";
    EXPECT_EQ(open.view(PersonList::Marked).selectedCounters(), (Counters{250, 251}));
    QTest::keyClick(&left, Qt::Key_Return);
    EXPECT_EQ(open.marked(), (Counters{250, 251, 252}));

    // The last one goes: the one before it is next.
    open.select(PersonList::Unmarked, {500});
    QTest::keyClick(&left, Qt::Key_Return);
    EXPECT_EQ(left.selectedCounters(), Counters{499});
}

TEST(Moving, ErrorsAreShownOnceAndTheListsStay)
{
    OpenWindow open(smallFamily());
    QFile file(open.family());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(5000)); // what another program left of it
    file.close();
    open.select(PersonList::Unmarked, {1});
    open.click<QToolButton>("RM");
    EXPECT_EQ(open.desktop.messages.size(), 1U);
    EXPECT_EQ(open.desktop.messages.at(0).style, desktop::MessageCritical);
    EXPECT_EQ(open.shown(PersonList::Unmarked).size(), 7U);
    EXPECT_EQ(open.desktop.pointers.back(), desktop::Pointer::Default);
}

TEST(Moving, FiguresAndNamesOfTheSelection)
{
    OpenWindow open(smallFamily());
    open.select(PersonList::Unmarked, {2, 7});
    EXPECT_EQ(open.control<QLabel>("Zahl_0").text(), "2 ausgewählt · 7 von 7");
    open.trigger("Kopieren");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Bär, Eva\nMüller, O'Neil\n");
    open.click<QToolButton>("RM");
    EXPECT_EQ(open.control<QLabel>("Zahl_1").text(), "2 ausgewählt · 2 von 7");
    EXPECT_EQ(open.control<QLabel>("PanelMarkiert").text(), "Davon markiert: 2");
}
