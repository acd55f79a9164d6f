// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/faultystorage.h"
#include "support/openwindow.h"
#include <QDateTime>
#include <QSplitter>

using namespace kalvenor;
using namespace kalvenor::test;

TEST(AnotherProgram, ItsChangeIsOfferedAndKeepsSelectionAndFilter)
{
    OpenWindow open(smallFamily());
    auto &bar = open.control<QWidget>("Hinweisleiste");
    open.type("Presse", "a");
    QTest::keyClick(&open.control<QLineEdit>("Presse"), Qt::Key_Return);
    const QString query = open.controller().query(PersonList::Unmarked);

    open.select(PersonList::Unmarked, {6});
    open.click<QToolButton>("RM"); // our own write is no news
    open.select(PersonList::Unmarked, {2, 4});
    QTest::qWait(600);
    EXPECT_TRUE(bar.isHidden());

    markElsewhere(open, "Update Daten SET Markierung = -1 WHERE Counter = 1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }, 5000));
    EXPECT_EQ(open.shown(PersonList::Unmarked), (Counters{1, 2, 3, 4})) << "nothing moves under the hand";
    open.click<QPushButton>("Jetztneuladen");
    EXPECT_TRUE(bar.isHidden());
    EXPECT_EQ(open.shown(PersonList::Unmarked), (Counters{2, 3, 4}));
    EXPECT_EQ(open.shown(PersonList::Marked), (Counters{1, 6}));
    EXPECT_EQ(open.view(PersonList::Unmarked).selectedCounters(), (Counters{2, 4}));
    EXPECT_EQ(open.controller().query(PersonList::Unmarked), query);

    // A file that was replaced is seen as well, and again after that.
    for (const char *title : {"first", "second"}) {
        SCOPED_TRACE(title);
        writeFamily(open.family() + ".new", smallFamily());
        ASSERT_TRUE(QFile::remove(open.family()));
        ASSERT_TRUE(QFile::rename(open.family() + ".new", open.family()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }, 5000));
        open.trigger("Neuladen");
        EXPECT_TRUE(bar.isHidden());
        EXPECT_EQ(open.view(PersonList::Unmarked).selectedCounters(), (Counters{2, 4}));
    }
}

TEST(AnotherProgram, ItsChangeComesInWithTheNextAction)
{
    OpenWindow open(smallFamily());
    markElsewhere(open, "Update Daten SET Markierung = -1 WHERE Counter = 3");
    open.select(PersonList::Unmarked, {5});
    open.click<QToolButton>("RM");
    EXPECT_EQ(open.shown(PersonList::Marked), (Counters{3, 5}));
    open.controller().undo();
    EXPECT_EQ(open.marked(), Counters{3}) << "what the other program marked is not ours to take back";
}

TEST(AnotherProgram, MayWriteBetweenTheQueriesOfTheTwoLists)
{
    OpenWindow open(smallFamily());
    FaultyStorage storage;
    bool mark = false;
    int seconds = 0;
    const auto other = [&] {
        mark = !mark;
        markElsewhere(open, QString("Update Daten SET Markierung = %1 WHERE Counter = 3").arg(mark ? -1 : 0));
        QFile touched(open.family()); // the clock of the disk may stand still
        ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
        touched.setFileTime(QDateTime::currentDateTime().addSecs(++seconds), QFileDevice::FileModificationTime);
    };
    const auto check = [&](Call) {
        Counters all = open.shown(PersonList::Unmarked);
        const Counters marked = open.shown(PersonList::Marked);
        all.insert(all.end(), marked.begin(), marked.end());
        std::sort(all.begin(), all.end());
        EXPECT_EQ(all, (Counters{1, 2, 3, 4, 5, 6, 7})) << "each person is in one list";
    };
    atEachCall(
        storage, Fault::OtherFirst, [] {}, [&] { open.controller().reloadLists(); }, check, other);
}

TEST(Window, SaysThatTheDatabaseIsDamaged)
{
    OpenWindow open(smallFamily());
    EXPECT_FALSE(open.control<QLabel>("PanelSchaden").isVisible());
    damageFamily(open.family());
    open.controller().reloadLists();
    const auto &label = open.control<QLabel>("PanelSchaden");
    EXPECT_TRUE(label.isVisible());
    EXPECT_TRUE(label.toolTip().contains("familie.mdb") && label.toolTip().contains("Seite"));
}

TEST(Window, EndsTheDatabasesAndKeepsItsPlace)
{
    OpenWindow open(smallFamily());
    open.window->resize(open.window->minimumSizeHint().width(), 700);
    const QSize size = open.window->size();
    QCoreApplication::processEvents();
    open.window->selectionPanel().setListSizes({300, 30, 400});
    const QList<int> laidOut = open.window->selectionPanel().listSplitter().sizes();
    const auto family = open.program.databases.Familiendatenbank;
    EXPECT_TRUE(open.window->close());
    EXPECT_FALSE(family->isOpen());
    EXPECT_EQ(open.program.language.text(language::Text::CriteriaHeading), "Auswahlkriterien")
        << "the host's texts are open in the end";
    EXPECT_TRUE(open.desktop.errors.empty());

    open.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return open.window->size() == size; })); // as small as its texts allow
    EXPECT_EQ(open.window->selectionPanel().listSplitter().sizes(), laidOut);
}

TEST(Window, ClosingCancelsRunningWorkFirst)
{
    OpenWindow open(smallFamily());
    desktop::Work &work = open.controller().work();
    bool cancelled = false;
    work.run("x", [&](const basic::Progress &progress) {
        EXPECT_FALSE(open.window->close());
        EXPECT_FALSE(work.run("y", [](const basic::Progress &) { ADD_FAILURE() << "work within work"; }));
        cancelled = !progress(1, 2);
        EXPECT_TRUE(open.program.databases.Familiendatenbank->isOpen());
    });
    EXPECT_TRUE(cancelled);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !open.window->isVisible(); }, 5000));
    EXPECT_FALSE(open.program.databases.Familiendatenbank->isOpen());
}

TEST(Window, InputWaitsWhileWorkRunsButCancelDoesNot)
{
    OpenWindow open(smallFamily());
    desktop::Work &work = open.controller().work();
    open.select(PersonList::Unmarked, {1});
    auto &name = open.control<QLineEdit>("Presse");
    const auto runUntilShown = [&](desktop::Work::Input input, const std::function<void()> &meanwhile) {
        bool goesOn = true;
        work.run(
            "x",
            [&](const basic::Progress &progress) {
                for (int i = 0; i < 20; ++i) {
                    QTest::qSleep(20);
                    progress(i, 20);
                }
                meanwhile();
                goesOn = progress(20, 20);
            },
            input);
        return goesOn;
    };
    EXPECT_TRUE(runUntilShown(desktop::Work::Input::CancelOnly, [&] {
        EXPECT_TRUE(open.control<QWidget>("Fortschrittrahmen").isVisible());
        QTest::keyClick(&open.view(PersonList::Unmarked), Qt::Key_Return);
        QTest::mouseClick(&open.control<QToolButton>("RMA"), Qt::LeftButton);
        QTest::keyClicks(&name, "a");
    }));
    EXPECT_TRUE(open.control<QWidget>("Fortschrittrahmen").isHidden());
    EXPECT_EQ(open.marked(), Counters{});
    EXPECT_EQ(name.text(), "");
    EXPECT_TRUE(runUntilShown(desktop::Work::Input::Typing, [&] { QTest::keyClicks(&name, "a"); }));
    EXPECT_EQ(name.text(), "a");
    EXPECT_FALSE(runUntilShown(desktop::Work::Input::CancelOnly,
                               [&] { QTest::mouseClick(&open.control<QPushButton>("Abbrechen"), Qt::LeftButton); }));
    EXPECT_FALSE(runUntilShown(desktop::Work::Input::CancelOnly,
                               [&] { QTest::keyClick(&open.view(PersonList::Unmarked), Qt::Key_Escape); }));
}

TEST(Window, ANewerFilterTakesTheRunningOnesPlace)
{
    OpenWindow open(smallFamily());
    desktop::Work &work = open.controller().work();
    bool once = true;
    QObject::connect(&work, &desktop::Work::began, &work, [&] {
        if (std::exchange(once, false))
            open.controller().filter({.Presse = "dorn"}, true);
    });
    open.controller().filter({.Presse = "a"}, true);
    EXPECT_EQ(open.shown(PersonList::Unmarked), Counters{4});
    EXPECT_TRUE(open.statusText().startsWith("Filter: 1 "));
}
