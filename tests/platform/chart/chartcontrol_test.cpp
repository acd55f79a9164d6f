// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartcontrol.h"
#include "platform/chart/chartdrawing.h"
#include "platform/chart/chartgeometry.h"
#include "platform/chart/charttables.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

namespace kalvenor::chart {
namespace {

using namespace Qt::StringLiterals;
using test::centuries;
using test::fullLook;

struct ShownChart : ChartControl {
    explicit ShownChart(ChartType type = ChartType::Bar, int rows = 5)
    {
        ChartLook look = fullLook(type);
        look.valueFormat = u"%1: %2 Jahre"_s;
        setLook(look);
        setTable(centuries(rows));
        resize(600, 400);
    }
};

TEST(ChartControl, TellsTheFigureUnderTheMouse)
{
    ShownChart chart;
    const ChartDrawing drawing(centuries(5), chart.look(), chart.size(), paperStyle());
    EXPECT_EQ(chart.hoverText(barRect(drawing.subject(), drawing.layout(), 2, 0).center()),
              u"Alle, 300-99: 67,4 Jahre"_s);
    EXPECT_EQ(chart.hoverText({1, 1}), QString());
    chart.resize(0, 0);
    EXPECT_EQ(chart.hoverText({0, 0}), QString());
}

TEST(ChartControl, FollowsThePaletteButCopiesLight)
{
    ShownChart chart;
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Text, Qt::white);
    chart.setPalette(palette);
    EXPECT_EQ(chart.grab().toImage().pixelColor(3, 3), QColor(0x23, 0x26, 0x29));
    chart.copyAction->trigger();
    const QMimeData *copied = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(copied->hasImage());
    EXPECT_EQ(copied->imageData().value<QImage>().pixelColor(3, 3), QColor(Qt::white));
    EXPECT_TRUE(copied->text().startsWith(u"\tM\tW\tAlle\n300-99\t38,0\t52,7\t67,4\n")) << copied->text().toStdString();
}

TEST(ChartControl, SwitchesAreTheOwnersToKeep)
{
    ShownChart chart;
    QSignalSpy changed(&chart, &ChartControl::lookChanged);
    QSignalSpy wanted(&chart, &ChartControl::saveWanted);
    const QImage before = chart.grab().toImage();
    chart.valuesAction->trigger();
    chart.gridAction->trigger();
    EXPECT_NE(chart.grab().toImage(), before);
    EXPECT_TRUE(chart.look().values && !chart.look().grid);
    EXPECT_EQ(changed.count(), 2);
    chart.setLook(fullLook(ChartType::Bar));
    EXPECT_TRUE(chart.gridAction->isChecked() && !chart.valuesAction->isChecked());
    EXPECT_EQ(changed.count(), 2);
    chart.saveAction->trigger();
    EXPECT_EQ(wanted.count(), 1);
}

TEST(ChartControl, FiguresCanBeReadWithoutThePicture)
{
    ShownChart chart;
    EXPECT_TRUE(chart.accessibleDescription().startsWith(u"300-99: M 38,0; W 52,7; Alle 67,4\n"));
    chart.show();
    chart.activateWindow();
    chart.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&chart));
    auto *table = chart.findChild<QTableWidget *>(u"chartFigures"_s);
    chart.tableAction->trigger();
    EXPECT_TRUE(table->isVisible() && table->hasFocus());
    EXPECT_EQ(table->item(0, 2)->text(), u"67,4"_s);
    chart.tableAction->trigger();
    EXPECT_TRUE(!table->isVisible() && chart.hasFocus());
}

TEST(ChartControl, MenuComesUpByKeyOverChartAndTable)
{
    ShownChart chart;
    chart.show();
    for (const bool asTable : {false, true}) {
        chart.tableAction->setChecked(asTable);
        QWidget *receiver =
            asTable ? chart.findChild<QTableWidget *>(u"chartFigures"_s) : static_cast<QWidget *>(&chart);
        QList<QAction *> offered;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, &closer, [&offered] {
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                offered = menu->actions();
                menu->close();
            }
        });
        closer.start(10);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, receiver->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(receiver, &event);
        EXPECT_TRUE(offered.contains(chart.copyAction) && offered.contains(chart.tableAction)) << asTable;
    }
}

} // namespace
} // namespace kalvenor::chart
