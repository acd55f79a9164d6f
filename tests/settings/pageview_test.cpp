// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "../support/columns.h"
#include "settings/preview/pageview.h"

#include "settings/dialog/controltexts.h"
#include "settings/previewfixture.h"
#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QPixmap>
#include <QScrollBar>
#include <QTest>
#include <set>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::settings;

namespace {

std::shared_ptr<const print::PageLayout> layoutOf(int pages)
{
    return std::make_shared<const print::PageLayout>(test::pagesOf(pages));
}

struct ShownView : PageView {
    explicit ShownView(int pages)
    {
        setPages(layoutOf(pages));
        resize(700, 600);
        show();
    }
    void settle()
    {
        do
            grab();
        while (!isComplete());
    }
    QSize room() const { return viewport()->size(); }
};

} // namespace

TEST(PageView, FitsPagesAsChosen)
{
    ShownView view(40);
    const auto page = [&] {
        return view.grid().pageSize();
    };
    view.setFit(Fit::WholePage);
    EXPECT_LE(page().height(), view.room().height());
    EXPECT_GT(page().height(), view.room().height() * 9 / 10);
    view.setFit(Fit::PageWidth);
    EXPECT_GT(page().width(), view.room().width() * 9 / 10);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    view.setFit(Fit::TwoPages);
    EXPECT_EQ(view.grid().columns(), 2);
    EXPECT_EQ(view.grid().pageRect(0).top(), view.grid().pageRect(1).top());
    view.setFit(Fit::Thumbnails);
    EXPECT_GE(view.grid().columns(), 4);
    view.resize(350, 600);
    EXPECT_LE(view.grid().columns(), 3) << "as many as there is room for";
    view.setZoom(100);
    EXPECT_NEAR(page().width(), 11906 * view.logicalDpiX() / 1440, 1);
}

TEST(PageView, ZoomsInSteps)
{
    const std::vector<std::array<int, 3>> rows = {{10, 10, 25},   {25, 10, 50},    {83, 75, 100},
                                                  {100, 75, 125}, {399, 375, 400}, {400, 375, 400}};
    for (const auto &[percent, smaller, larger] : rows) {
        EXPECT_EQ(nextZoom(percent, false), smaller) << percent;
        EXPECT_EQ(nextZoom(percent, true), larger) << percent;
    }
    ShownView view(3);
    view.setZoom(100);
    QWheelEvent wheel({300, 300}, view.mapToGlobal(QPoint(300, 300)), {}, {0, 120}, {}, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    EXPECT_EQ(view.zoom(), 125);
    view.setZoom(5000);
    EXPECT_EQ(view.zoom(), 400);
}

TEST(PageView, GoesFromPageToPage)
{
    ShownView view(10);
    view.setFit(Fit::WholePage);
    const std::vector<std::pair<Qt::Key, int>> keys = {
        {Qt::Key_PageDown, 1}, {Qt::Key_PageDown, 2}, {Qt::Key_PageUp, 1}, {Qt::Key_End, 9},
        {Qt::Key_PageDown, 9}, {Qt::Key_Home, 0},     {Qt::Key_PageUp, 0}};
    for (const auto &[key, page] : keys) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(view.currentPage(), page);
        EXPECT_TRUE(
            view.rect().intersects(view.grid().pageRect(page).translated(0, -view.verticalScrollBar()->value())));
    }
    view.setZoom(100);
    view.verticalScrollBar()->setValue(view.grid().pageRect(5).top());
    EXPECT_EQ(view.currentPage(), 5) << "the page follows scrolling";
    view.setZoom(200);
    EXPECT_EQ(view.currentPage(), 5) << "and stays where the zoom changes";
    view.setPages(layoutOf(3));
    EXPECT_EQ(view.currentPage(), 2) << "the last one where there are fewer";
    view.setFit(Fit::Thumbnails);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.grid().pageRect(1).center());
    EXPECT_EQ(view.fit(), Fit::WholePage);
    EXPECT_EQ(view.currentPage(), 1);
}

TEST(PageView, KeepsFewPicturesOfManyPages)
{
    ShownView view(5000);
    QElapsedTimer clock;
    clock.start();
    view.setZoom(100);
    for (int page = 0; page < 5000; page += 20) {
        view.goToPage(page);
        view.settle();
        ASSERT_LE(view.tiles().bytes(), PageTiles::LeastBytes);
    }
    EXPECT_GT(view.tiles().bytes(), PageTiles::LeastBytes / 2) << "it was filled";
    RecordProperty("milliseconds_a_page", static_cast<int>(clock.elapsed() / 250));
    view.setZoom(400);
    view.settle();
    EXPECT_LE(view.tiles().bytes(), PageTiles::LeastBytes);
}

TEST(PageView, PaintsPaperWhiteOnADarkDesktop)
{
    ShownView view(1);
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    view.setPalette(dark);
    view.settle();
    const QImage shown = view.grab().toImage();
    EXPECT_EQ(shown.pixelColor(view.grid().pageRect(0).bottomRight() - QPoint(20, 60)), QColor(Qt::white));
    EXPECT_LT(shown.pixelColor(2, 2).lightness(), 100);
}

TEST(PageSearch, FindsTexts)
{
    print::PrintDocument document = test::pagesOf(3);
    const print::StyleId bold = document.addStyle({.bold = true});
    document.add(print::RichParagraph{.runs = {{u"Groß"_s, bold}, {u"vater"_s}}});
    document.add(print::TableStart{.columns = test::columns(u"<3000|>900")});
    document.add(print::TableRow{.cells = {{u"Adler, Hans"_s}, {u"71"_s}}});
    const auto layout = std::make_shared<const print::PageLayout>(document);
    const struct {
        const char *needle;
        std::vector<int> pages;
    } rows[] = {
        {"Müller", {0, 1, 2}}, {"MÜLLER", {0, 1, 2}}, {"zeile 2", {1}}, {"Hans Eva", {0, 1, 2}},
        {"großvater", {2}},    {"Hans 71", {2}},      {"Müllerin", {}}, {"  ", {}},
    };
    PageSearch search;
    for (const auto &row : rows) {
        search.begin(layout, row.needle);
        while (!search.advance(0)) {
        }
        std::vector<int> pages;
        for (const auto &match : search.matches())
            pages.push_back(match.page);
        EXPECT_EQ(pages, row.pages) << row.needle;
        std::set<std::size_t> placed;
        for (int page = 0; page < 3; ++page) {
            for (const auto &area : search.areas(page))
                placed.insert(area.match);
        }
        EXPECT_EQ(placed.size(), row.pages.size()) << row.needle;
    }
    search.begin(layout, "Eva");
    search.advance(1000);
    const auto &texts = layout->pages()[0].texts;
    const auto eva = std::find_if(texts.begin(), texts.end(), [](const auto &text) { return text.text == u"Eva"; });
    const QRectF area = search.areas(0).at(0).place;
    EXPECT_NEAR(area.left(), static_cast<double>(eva->x), 1);
    EXPECT_NEAR(area.width(), static_cast<double>(eva->width), 1);
}

TEST(ControlTexts, FillTheirPlaces)
{
    ControlTexts texts;
    EXPECT_EQ(texts.deviceLine("Laser %s", "Room 5"), "on the Laser %s on Room 5");
    EXPECT_EQ(texts.pageLine(3, 17), "Now printing Page 3 of 17");
    texts.device = "Gerät";
    texts.page = "Seite";
    texts.zoomChoices = "Alles|Breit";
    EXPECT_EQ(texts.deviceLine("Laser", "Raum 5"), "Gerät Laser Raum 5");
    EXPECT_EQ(texts.pageLine(3, 17), "Seite 3 17");
    EXPECT_EQ(texts.zooms(), (std::array<QString, 4>{"Alles", "Breit", "&Two Pages", "Thumb&nail"}));
    texts.zoomChoices = "????";
    EXPECT_EQ(texts.zooms()[0], "Whole &Page");
}
