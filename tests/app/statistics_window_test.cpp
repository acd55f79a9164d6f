// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartcontrol.h"
#include "support/openwindow.h"
#include <QClipboard>
#include <QComboBox>
#include <QSignalSpy>
#include <QTableView>

using namespace kalvenor;
using namespace kalvenor::test;
using statistics::StatisticsController;
using statistics::StatisticsPanel;

namespace {

/// All seven persons are marked, four have both dates: two men and two women, all born in the 1800s.
struct MarkedFamily : OpenWindow {
    explicit MarkedFamily(const std::vector<TestPerson> &persons = smallFamily()) : OpenWindow(persons)
    {
        showTab(StatisticsPanel::Introduction); // where nothing is computed
        controller().moveAll(PersonList::Unmarked);
    }
    StatisticsController &statistics() { return window->statisticsController(); }
    void showTab(StatisticsPanel::Tab tab) { control<QTabWidget>("statistiktab").setCurrentIndex(tab); }
    QString label(const char *name) { return control<QLabel>(name).text(); }
    QStringList lines()
    {
        QStringList texts;
        const QAbstractItemModel &model = *control<QTableView>("Altersliste").model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts << model.index(row, 0).data().toString();
        return texts;
    }
    const chart::ChartTable &table() { return control<chart::ChartControl>("Grafik").table(); }
    bool isStale() { return control<QWidget>("Veraltet").isVisible(); }
};

} // namespace

TEST(Statistic, ItsTabsShowListChartAndFigures)
{
    MarkedFamily open;
    open.showTab(StatisticsPanel::AgeList);
    EXPECT_EQ(open.lines(),
              (QStringList{" 71.2  Adler, Hans ", "109.5  Bär, Eva ", " 73.9  Claus, Ernst ", " 66.0  Dorn, Ida "}));
    EXPECT_EQ(open.control<QTableView>("Altersliste").font().family(), "Courier New");
    open.showTab(StatisticsPanel::Chart);
    QStringList figures;
    for (const char *name : {"Anzahl_0", "Anzahl_1", "Anzahl_2", "Durchschnitt_0", "Durchschnitt_1", "Durchschnitt_2",
                             "Altersspanne", "OhneDatum"})
        figures << open.label(name);
    EXPECT_EQ(figures, (QStringList{"2", "2", "4", "72.6", "87.8", "80.2", " 66 |  109.5", " 3 ohne * / + Datum"}));
    EXPECT_EQ(open.table().rowLabels, QStringList{" 1800-99"});
}

TEST(Statistic, EachControlComputesWhatHangsOnIt)
{
    MarkedFamily open;
    open.showTab(StatisticsPanel::Chart);
    QSignalSpy list(&open.statistics(), &StatisticsController::listCleared);
    QSignalSpy chart(&open.statistics(), &StatisticsController::figuresChanged);
    const std::pair<QString, bool> controls[] = {{"geschlechtalter_0", false},
                                                 {"geschlechtalter_1", false},
                                                 {"geschlechtalter_2", true},
                                                 {"gt_ribbon_1", true},
                                                 {"Legende", true}};
    for (const auto &[name, isOfChart] : controls) {
        list.clear();
        chart.clear();
        open.click<QAbstractButton>(name);
        EXPECT_EQ(list.count(), isOfChart ? 0 : 1) << name.toStdString();
        EXPECT_EQ(chart.count(), isOfChart ? 1 : 0) << name.toStdString();
    }
    QTest::keyClick(&open.control<QComboBox>("Grafiktyp"), Qt::Key_Down);
    EXPECT_EQ(chart.count(), 2);

    EXPECT_TRUE(open.lines().isEmpty()) << "no sex is selected";
    EXPECT_EQ(open.table().columnLabels, QStringList{"W"});
    EXPECT_EQ(open.table().rowLabels, (QStringList{" 1800-99", " 1900-99"})) << "both women died then";
    const chart::ChartLook &look = open.control<chart::ChartControl>("Grafik").look();
    EXPECT_FALSE(look.legend);
    EXPECT_EQ(look.type, chart::ChartType::Line3D);

    // The controls are as they were left when the window opens again.
    const statistics::Statistik left = open.window->statisticsPanel().options();
    EXPECT_EQ(left.geschlechtalter, (statistics::GeschlechtAlter{0, 0, 0, 1}));
    ASSERT_TRUE(open.window->close());
    open.show();
    EXPECT_TRUE(open.window->statisticsPanel().options() == left);
}

TEST(Statistic, FollowsTheMarksAndLeadsBackToThem)
{
    MarkedFamily open;
    open.showTab(StatisticsPanel::AgeList);
    open.select(PersonList::Marked, {1});
    open.click<QToolButton>("RM2");
    EXPECT_TRUE(QTest::qWaitFor([&] { return open.lines().size() == 3; }));
    auto &list = open.control<QTableView>("Altersliste");
    list.setFocus();
    list.selectRow(1);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), " 73.9  Claus, Ernst ");
    markElsewhere(open, "Update Daten SET Markierung = 0 WHERE Counter = 2");
    open.showTab(StatisticsPanel::Chart);
    open.showTab(StatisticsPanel::AgeList);
    EXPECT_EQ(open.lines().size(), 2) << "what another program unmarked";
    const QPoint first = list.visualRect(list.model()->index(0, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(open.view(PersonList::Marked).selectedCounters(), Counters{3});

    open.controller().moveAll(PersonList::Marked);
    open.showTab(StatisticsPanel::Chart);
    EXPECT_TRUE(open.table().isEmpty());
    EXPECT_TRUE(open.control<chart::ChartControl>("Grafik").look().emptyText.contains("Markieren"));
}

TEST(Statistic, ABarLeadsToItsPersonsAndCanLeaveJustThemMarked)
{
    MarkedFamily open;
    open.window->resize(1400, 900);
    open.showTab(StatisticsPanel::Chart);
    auto &chart = open.control<chart::ChartControl>("Grafik");
    QPoint bar;
    for (int x = 0; x < chart.width() && bar.isNull(); x += 3) {
        for (int y = 0; y < chart.height() && bar.isNull(); y += 3) {
            if (chart.hoverText({double(x), double(y)}).startsWith("M"))
                bar = {x, y};
        }
    }
    ASSERT_FALSE(bar.isNull());
    QTest::mouseClick(&chart, Qt::LeftButton, {}, bar);
    EXPECT_EQ(open.control<QTabWidget>("statistiktab").currentIndex(), StatisticsPanel::AgeList);
    EXPECT_EQ(open.lines(), (QStringList{" 71.2  Adler, Hans ", " 73.9  Claus, Ernst "}));
    EXPECT_EQ(open.label("NurDiese_Text"), "Männer · Jahrhundert der Geburt 1800-99: 2 Personen.");
    EXPECT_EQ(open.statistics().list().size(), 4U) << "what is printed stays whole";
    open.click<QPushButton>("GanzeListe");
    EXPECT_EQ(open.lines().size(), 4);

    open.showTab(StatisticsPanel::Chart);
    chart.tableAction->trigger();
    auto &figures = open.control<QTableView>("chartFigures");
    figures.setFocus();
    figures.setCurrentIndex(figures.model()->index(0, 1));
    QTest::keyClick(&figures, Qt::Key_Return);
    EXPECT_EQ(open.lines(), (QStringList{"109.5  Bär, Eva ", " 66.0  Dorn, Ida "}));
    open.window->statisticsPanel().setReadOnly(true);
    EXPECT_FALSE(open.control<QPushButton>("NurDiese_markieren").isEnabled());
    open.window->statisticsPanel().setReadOnly(false);
    open.click<QPushButton>("NurDiese_markieren");
    EXPECT_EQ(open.marked(), (Counters{2, 4}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !open.control<QWidget>("NurDiese").isVisible(); }));
    open.controller().undo();
    EXPECT_EQ(open.marked().size(), 7U);
}

TEST(Statistic, TellsWhoIsLeftOutAndWhatToDoWhereNothingIsShown)
{
    auto persons = smallFamily();
    persons[0].sex = "?";
    MarkedFamily open(persons);
    open.showTab(StatisticsPanel::Chart);
    EXPECT_EQ(open.label("Ausgelassen"), "1 ohne Angabe des Geschlechts (nur bei „Alle“)");
    QStringList rows;
    open.desktop.dialogAnswer = [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Nicht berücksichtigt: 3, 1 ohne Angabe des Geschlechts (nur bei „Alle“)");
        auto &list = *dialog.findChild<QTableView *>("Ausgelassene");
        for (int row = 0; row < list.model()->rowCount(); ++row)
            rows << list.model()->index(row, 0).data().toString() + ": " +
                        list.model()->index(row, 1).data().toString();
        list.selectRow(1);
        return true;
    };
    open.click<QPushButton>("Auslassungen");
    EXPECT_EQ(rows, (QStringList{"Adler, Hans: Geschlecht nicht bekannt: zählt nur bei „Alle“",
                                 "Eck, Emil: Sterbedatum nicht bekannt, oder die Person lebt",
                                 "Falk, Rosa: Sterbedatum nicht bekannt, oder die Person lebt",
                                 "Müller, O'Neil: Sterbedatum nicht bekannt, oder die Person lebt"}));
    EXPECT_EQ(open.view(PersonList::Marked).selectedCounters(), Counters{5});

    auto &way = open.control<QPushButton>("Weiter_Grafik");
    for (const char *sex : {"geschlechtalter_2", "geschlechtalter_3"}) {
        EXPECT_FALSE(way.isVisible());
        open.click<QAbstractButton>(sex);
    }
    EXPECT_TRUE(way.isVisible());
    way.click();
    EXPECT_FALSE(way.isVisible());
    EXPECT_TRUE(open.control<QCheckBox>("geschlechtalter_3").isChecked());

    open.controller().moveAll(PersonList::Marked);
    open.showTab(StatisticsPanel::AgeList);
    open.click<QPushButton>("Weiter_Altersliste");
    EXPECT_TRUE(open.view(PersonList::Unmarked).hasFocus());
}

TEST(Statistic, SaysThatItIsOutdatedWhereItWasCancelledOrFailed)
{
    auto persons = smallFamily();
    persons.push_back({.counter = 8, .listname = "Zeh, Hans", .birth = -900000, .death = -880000});
    MarkedFamily open(persons);
    open.showTab(StatisticsPanel::Chart);
    ASSERT_EQ(open.desktop.messages.size(), 1U) << "a year before 100";
    EXPECT_TRUE(open.desktop.messages[0].text.contains("Zeh, Hans (8)"));
    EXPECT_TRUE(open.isStale());
    EXPECT_EQ(open.control<chart::ChartControl>("Grafik").look().emptyText, "");
    open.select(PersonList::Marked, {8});
    open.click<QToolButton>("RM2");
    QTest::qWait(300);
    EXPECT_EQ(open.desktop.messages.size(), 1U) << "nobody asked";
    open.click<QPushButton>("Neuberechnen");
    EXPECT_FALSE(open.isStale());
    EXPECT_EQ(open.label("Anzahl_2"), "4");

    desktop::Work &work = open.controller().work();
    const auto cancelling = QObject::connect(&work, &desktop::Work::began, &work, &desktop::Work::cancel);
    open.click<QAbstractButton>("gt_ribbon_1");
    EXPECT_TRUE(open.isStale());
    EXPECT_EQ(open.table().rowLabels, QStringList{" 1800-99"});
    open.showTab(StatisticsPanel::AgeList);
    EXPECT_TRUE(open.isStale());
    EXPECT_TRUE(open.lines().isEmpty());
    QObject::disconnect(cancelling);
    open.click<QPushButton>("Neuberechnen");
    EXPECT_EQ(open.lines().size(), 4);
    EXPECT_FALSE(open.isStale());
    open.showTab(StatisticsPanel::Chart);
    EXPECT_EQ(open.table().rowLabels.size(), 2);
}
