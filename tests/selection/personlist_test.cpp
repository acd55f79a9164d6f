// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/personlistview.h"

#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

std::shared_ptr<dao::Recordset> unmarked(test::StartedProgram &started)
{
    return started.program.databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Unmarked));
}

} // namespace

TEST(PersonListModel, ShowsOneResultAfterTheOther)
{
    test::StartedProgram started({{.counter = 1, .listname = "B"}, {.counter = 2, .listname = "A"}});
    PersonListModel model(PersonList::Unmarked);
    const QAbstractItemModelTester tester(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    EXPECT_EQ(model.rowCount(), 0);
    model.show(unmarked(started));
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0).data().toString(), "A");
    EXPECT_EQ(model.index(0).data(PersonListModel::CounterRole).toInt(), 2);
    EXPECT_FALSE(model.index(2).data().isValid());

    // A query without the columns of a person changes nothing.
    auto &database = *started.program.databases.Familiendatenbank;
    EXPECT_THROW(model.show(database.openQuery("SELECT Counter FROM Daten")), basic::Error);
    EXPECT_EQ(model.rowCount(), 2);
    // Rows that the engine had to compute can be shown as well.
    model.show(database.openQuery("SELECT Counter, Listname FROM Daten ORDER BY -Counter"));
    EXPECT_EQ(model.nameAt(0), "A");
    EXPECT_EQ(model.counterAt(1), 1);
    EXPECT_EQ(resets.count(), 2);
}

TEST(PersonListModel, FindsNamesAsPeopleTypeThem)
{
    test::StartedProgram started({{.counter = 1, .listname = "Mahler, A"},
                                  {.counter = 2, .listname = "Mueller, B"},
                                  {.counter = 3, .listname = "Müller, C"},
                                  {.counter = 4, .listname = "O'Neil, D"},
                                  {.counter = 5, .listname = "Weiß, E"},
                                  {.counter = 6, .listname = ""}});
    PersonListModel model(PersonList::Unmarked);
    model.show(unmarked(started));
    const struct {
        const char *typed;
        int counter; ///< 0: none
    } rows[] = {{"m", 1},   {"MU", 2},    {"mue", 2},  {"müll", 3}, {"mull", 3}, {"oneil", 4},
                {"o'n", 4}, {"weiss", 5}, {"weiß", 5}, {"n", 0},    {"zz", 0},   {"a", 0}};
    for (const auto &row : rows) {
        const int found = model.findName(QString::fromUtf8(row.typed));
        EXPECT_EQ(found < 0 ? 0 : model.counterAt(found), row.counter) << row.typed;
    }
}

TEST(PersonListView, GoesWhereKeysAndTypingSay)
{
    std::vector<test::TestPerson> persons;
    for (qint32 i = 1; i <= 300; ++i)
        persons.push_back({.counter = i, .listname = QString("Person %1").arg(i, 3, 10, QChar(u'0'))});
    persons.push_back({.counter = 900, .listname = "Zander"});
    test::StartedProgram started(persons);
    PersonListModel model(PersonList::Unmarked);
    PersonListView view(model);
    view.resize(200, 210);
    view.show();
    model.show(unmarked(started));
    const auto counter = [&] {
        return model.counterAt(view.currentIndex().row());
    };
    const auto isVisible = [&] {
        return view.viewport()->rect().contains(view.visualRect(view.currentIndex()));
    };

    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(counter(), 900);
    EXPECT_TRUE(isVisible());
    QTest::keyClick(&view, Qt::Key_Home);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(counter(), 2);
    QTest::keyClick(&view, Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_GT(view.selectedCount(), 3);
    EXPECT_EQ(view.selectedCount(), view.currentIndex().row());
    QTest::keyClicks(&view, "za");
    EXPECT_EQ(counter(), 900);
    EXPECT_EQ(view.selectedCounters(), std::vector<qint32>{900});
    EXPECT_TRUE(isVisible());
    QTest::qWait(QApplication::keyboardInputInterval() * 3 + 50);
    QTest::keyClicks(&view, "person 15");
    EXPECT_EQ(counter(), 150);

    // What is under the mouse is what is painted there.
    view.verticalScrollBar()->setValue(100 * view.visualRect(model.index(0)).height() + 5);
    EXPECT_EQ(view.indexAt({5, 0}).row(), 100);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(model.index(102)).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, view.visualRect(model.index(104)).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, view.visualRect(model.index(103)).center());
    EXPECT_EQ(view.selectedCounters(), (std::vector<qint32>{103, 105}));
    EXPECT_FALSE(view.indexAt({5, -5000}).isValid());
}
