// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/figurestable.h"
#include "support/openwindow.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QSplitter>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

constexpr QSize SmallScreen(960, 540);
constexpr int TitleBar = 30;

/// The size of text that many desktops use.
struct LargerText {
    LargerText()
    {
        QFont larger = before;
        larger.setPointSize(11);
        QApplication::setFont(larger);
    }
    ~LargerText() { QApplication::setFont(before); }
    const QFont before = QApplication::font();
};

std::map<QString, QRect> places(const QWidget &window)
{
    std::map<QString, QRect> found;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->isVisible() && !widget->objectName().isEmpty())
            found[widget->objectName()] = {widget->mapTo(&window, QPoint()), widget->size()};
    }
    return found;
}

/// The places once nothing has moved for a while: longer than the window waits before it computes.
std::map<QString, QRect> settledPlaces(const QWidget &window)
{
    std::map<QString, QRect> last;
    QElapsedTimer still;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        std::map<QString, QRect> now = places(window);
        if (now != last || !still.isValid())
            still.start();
        last = std::move(now);
        return still.elapsed() > 300;
    }));
    return last;
}

} // namespace

TEST(Layout, FitsASmallScreenInBothLanguages)
{
    const LargerText eleven;
    for (const char *language : {"Deutsch", "English"}) {
        SCOPED_TRACE(language);
        TranslatedWindow open(language);
        open.controller().moveAll(PersonList::Unmarked);
        open.window->statisticsPanel().computeAll();
        for (QLabel *label : open.window->findChildren<QLabel *>()) {
            if (label->text().contains(QChar(u'7'))) // seven persons
                label->setText(label->text().replace(u'7', u"1.234.567"_s));
        }
        for (int tab = 0; tab < 3; ++tab) {
            open.window->statisticsPanel().tabs().setCurrentIndex(tab);
            const QSize least = open.window->minimumSizeHint();
            EXPECT_LE(least.width(), SmallScreen.width()) << tab;
            EXPECT_LE(least.height(), SmallScreen.height() - TitleBar) << tab;
        }
        open.window->statisticsPanel().showTab(statistics::StatisticsPanel::Chart);
        open.window->resize(SmallScreen.width(), SmallScreen.height() - TitleBar);
        QCoreApplication::processEvents();
        const auto &figures = *open.window->findChild<statistics::FiguresTable *>();
        EXPECT_GE(figures.height(), figures.layout()->minimumHeightForWidth(figures.width()));
    }
}

TEST(Layout, ListsStandAboveEachOtherWhereThereIsNoRoomBeside)
{
    OpenWindow open(smallFamily());
    QSplitter &lists = open.window->selectionPanel().listSplitter();
    for (const auto &[size, orientation] :
         {std::pair(QSize(1600, 800), Qt::Horizontal), std::pair(SmallScreen, Qt::Vertical),
          std::pair(QSize(1600, 800), Qt::Horizontal)}) {
        open.window->resize(size);
        QSplitter &halves = open.control<QSplitter>("Teiler");
        halves.setSizes({size.width() * 45 / 100, size.width() * 55 / 100});
        EXPECT_TRUE(QTest::qWaitFor([&] { return lists.orientation() == orientation; }));
        for (const PersonList list : {PersonList::Unmarked, PersonList::Marked})
            EXPECT_GE(open.view(list).viewport()->height(), 3 * open.view(list).fontMetrics().height());
    }
}

TEST(Layout, NothingMovesWhileASelectionGrows)
{
    OpenWindow open(manyPersons(2000));
    for (const QSize size : {SmallScreen, QSize(1400, 800)}) {
        open.window->resize(size);
        open.view(PersonList::Unmarked).clearSelection();
        const auto before = settledPlaces(*open.window);
        open.view(PersonList::Unmarked).selectAll();
        QCoreApplication::processEvents();
        EXPECT_EQ(open.control<QLabel>("Zahl_0").text(), "2.000 ausgewählt · 2.000 von 2.000");
        EXPECT_TRUE(places(*open.window) == before);
        open.control<QLabel>("Zahl_0").setText("200.000 ausgewählt · 200.000 von 2.000.000");
        QCoreApplication::processEvents();
        EXPECT_TRUE(places(*open.window) == before);
    }
}

TEST(Layout, FirstOpensOnTheChartWithinTheScreen)
{
    OpenWindow open(smallFamily());
    EXPECT_EQ(open.window->statisticsPanel().tabs().currentIndex(), statistics::StatisticsPanel::Chart);
    const QSize screen = open.window->screen()->availableSize();
    EXPECT_LE(open.window->width(), screen.width());
    EXPECT_LE(open.window->height(), screen.height());
}
