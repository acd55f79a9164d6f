// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/chart/canvas.h"
#include "platform/chart/chartdrawing.h"
#include "platform/chart/chartgeometry.h"
#include "platform/chart/chartpicture.h"
#include "platform/chart/charttables.h"
#include "support/errors.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <set>

namespace kalvenor::chart {
namespace {

using namespace Qt::StringLiterals;
using test::centuries;
using test::fullLook;

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

bool isUniform(const QImage &image)
{
    QImage other = image;
    other.fill(image.pixelColor(0, 0));
    return other == image;
}

/// Share of the pixels in which two pictures clearly differ.
double difference(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 64 ? 1 : 0;
    }
    return count / static_cast<double>(one.width() * one.height());
}

TEST(Chart, FiguresAreAFullRectangleOfNumbers)
{
    const ChartTable table{{u" M "_s, u"W"_s}, {u" 1800-99"_s}, {{u" 45.99"_s}, {u"x"_s, u"1e999"_s, u"-.5"_s}}};
    const ChartFigures all = chartFigures(table, ChartKind::Bars);
    EXPECT_EQ(all.series, (QStringList{u"M"_s, u"W"_s, QString()}));
    EXPECT_EQ(all.rows, (QStringList{u"1800-99"_s, QString()}));
    EXPECT_EQ(all.values, (std::vector<std::vector<double>>{{45.99, 0}, {0, 0}, {0, -0.5}}));
    EXPECT_EQ(chartFigures(table, ChartKind::Pie).values, (std::vector<std::vector<double>>{{0, 0}}));
    EXPECT_EQ(chartFigureText(45.99, QLocale(QLocale::German)), u"45,9"_s);
}

TEST(Chart, AxisIsRoundAndHoldsEveryFigure)
{
    const struct {
        QString low, high;
        double axisLow, axisHigh, step;
    } cases[] = {{u"38"_s, u"74"_s, 0, 80, 10},  {u"0"_s, u"0"_s, 0, 10, 1},     {u"90"_s, u"104.2"_s, 0, 120, 20},
                 {u"3"_s, u"24"_s, 0, 25, 2.5},  {u"-7"_s, u"30"_s, -10, 30, 5}, {u".0027"_s, u".01"_s, 0, .01, .001},
                 {u"1e-300"_s, u"0"_s, 0, 10, 1}};
    for (const auto &[low, high, axisLow, axisHigh, step] : cases) {
        const ValueAxis axis = valueAxis(chartFigures({{}, {}, {{low}, {high}}}, ChartKind::Bars), 10);
        EXPECT_NEAR(axis.low, axisLow, 1e-9) << high.toStdString();
        EXPECT_NEAR(axis.high, axisHigh, 1e-9) << high.toStdString();
        EXPECT_NEAR(axis.step, step, 1e-9) << high.toStdString();
    }
}

TEST(Chart, NoTextIsCutOrMeetsAnother)
{
    for (const ChartType type : test::AllChartTypes) {
        for (const int rows : {1, 5, 20}) {
            for (const bool longLabels : {false, true}) {
                for (const double factor : {1.0, 3.0, 8.0}) {
                    for (const QSize size : {QSize(300, 200), QSize(600, 400), QSize(1200, 800)}) {
                        ChartLook look = fullLook(type);
                        look.fontFactor = factor;
                        look.values = rows == 5;
                        const ChartDrawing drawing(centuries(rows, longLabels), look, size, paperStyle());
                        const std::vector<PlacedText> &texts = drawing.layout().texts;
                        const auto name = [&] {
                            return u"type %1, %2 rows, long %3, factor %4, width %5"_s.arg(static_cast<int>(type))
                                .arg(rows)
                                .arg(longLabels)
                                .arg(factor)
                                .arg(size.width())
                                .toStdString();
                        };
                        std::set<TextRole> roles;
                        for (std::size_t i = 0; i < texts.size(); ++i) {
                            roles.insert(texts[i].role);
                            const QFontMetricsF metrics(texts[i].font);
                            const QRectF ink = metrics.boundingRect(QRectF(), Qt::AlignCenter, texts[i].block.text);
                            ASSERT_LE(ink.width(), texts[i].block.size.width() + 1) << name();
                            ASSERT_TRUE(QRectF(QPointF(), size).contains(texts[i].outline().boundingRect())) << name();
                            for (std::size_t j = 0; j < i; ++j) {
                                const QRectF common = texts[i].outline().intersected(texts[j].outline()).boundingRect();
                                ASSERT_FALSE(common.width() > 1 && common.height() > 1)
                                    << name() << ": " << texts[i].block.text.toStdString() << " over "
                                    << texts[j].block.text.toStdString();
                            }
                            ASSERT_FALSE(!longLabels && texts[i].block.text.contains(u'…')) << name();
                        }
                        if (!longLabels) { // nothing had to be given up
                            EXPECT_TRUE(roles.count(TextRole::Title) == 1 && roles.count(TextRole::ValueTitle) == 1)
                                << name();
                            EXPECT_EQ(roles.count(TextRole::Legend), type == ChartType::Pie && rows > 8 ? 0U : 1U)
                                << name();
                        }
                    }
                }
            }
        }
    }
}

TEST(Chart, OddTablesAndLooksArePainted)
{
    const QString huge(3000, u'w');
    const ChartTable tables[] = {{{}, {}, {{}}},
                                 {{u"M"_s}, {}, {{u"1"_s}, {}, {u"2"_s, u"3"_s}}},
                                 {{u"M"_s}, {u"1"_s, u"2"_s}, {{u"x"_s}}},
                                 {{u"M"_s}, {u"1"_s, u"2"_s}, {{u"-4"_s}, {u"1e300"_s}}},
                                 {{huge, huge}, {huge, huge}, {{u"1"_s, u"2"_s}, {u"1"_s, u"0"_s}}},
                                 centuries(400)};
    for (const int type : {-1, 1, 2, 5, 7, 8, 14, 16, 77}) { // numbers without a type among them
        for (const ChartTable &table : tables) {
            for (const QSize size : {QSize(1, 1), QSize(40, 30), QSize(300, 200)}) {
                ChartLook look = fullLook(static_cast<ChartType>(type));
                look.values = true;
                const QImage image = chartImage(table, look, size, 96);
                EXPECT_EQ(image.size(), size);
                EXPECT_FALSE(image.hasAlphaChannel());
                EXPECT_TRUE(size.width() < 300 || !isUniform(image)) << type;
            }
        }
    }
}

TEST(Chart, AbsurdFontFactorsAreHeldWithinLimits)
{
    const auto picture = [](double factor) {
        ChartLook look = fullLook(ChartType::Bar);
        look.fontFactor = factor;
        return chartImage(centuries(5), look, {900, 600}, 96);
    };
    for (const double factor : {0.0, -5.0, NotANumber})
        EXPECT_EQ(picture(factor), picture(3)) << factor;
    EXPECT_EQ(picture(99999), picture(9));
    EXPECT_EQ(picture(0.01), picture(1.5));
    EXPECT_NE(picture(4), picture(3));
}

TEST(Chart, LooksTheSameAtAnyResolution)
{
    const ChartLook look = fullLook(ChartType::Bar);
    const QImage coarse = chartImage(centuries(5), look, {600, 400}, 96);
    const QImage fine = chartImage(centuries(5), look, {1800, 1200}, 288);
    EXPECT_EQ(fine.dotsPerMeterX(), 11339);
    EXPECT_LT(difference(coarse, fine.scaled(600, 400, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)), 0.01);
}

TEST(Chart, EmptyTableSaysWhyAndShowsNoAxes)
{
    const ChartDrawing drawing({}, fullLook(ChartType::Line), {300, 200}, paperStyle());
    ASSERT_EQ(drawing.layout().texts.size(), 1U);
    EXPECT_TRUE(drawing.layout().plot.isEmpty());
    EXPECT_FALSE(isUniform(chartImage({}, fullLook(ChartType::Line), {300, 200}, 96)));
}

TEST(Chart, FirstColoursStayApartInGreyAndFromTheirGround)
{
    for (const bool dark : {false, true}) {
        ChartStyle style = paperStyle();
        style.dark = dark;
        std::vector<int> greys{dark ? 0x23 : 0xff};
        for (int i = 0; i < 3; ++i)
            greys.push_back(qGray(style.seriesColor(i).rgb()));
        for (std::size_t i = 0; i < greys.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_GE(std::abs(greys[i] - greys[j]), 35) << dark << i << j;
        }
    }
}

TEST(Chart, FileIsOfTheKindOfItsEnding)
{
    const QTemporaryDir folder;
    ChartLook look = fullLook(ChartType::Pie);
    look.title = u"A & <B>"_s;
    for (const auto &[name, format] : {std::pair(u"c.png"_s, "png"), {u"c.JPG"_s, "jpeg"}, {u"c.jpeg"_s, "jpeg"}}) {
        const QString file = folder.filePath(name);
        writeChart(centuries(5), look, {600, 400}, file, 80);
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.format(), format);
        EXPECT_EQ(reader.size(), QSize(600, 400)) << name.toStdString();
        EXPECT_FALSE(isUniform(reader.read()));
    }
}

TEST(Chart, SvgHoldsItsTextsAsTextsAndSaysWhatItShows)
{
    const QTemporaryDir folder;
    for (const ChartType type : test::AllChartTypes) {
        ChartLook look = fullLook(type);
        look.title = u"A\x01 & <B>"_s;
        look.values = true;
        writeChart(centuries(5), look, {600, 400}, folder.filePath(u"c.svg"_s));
        QFile file(folder.filePath(u"c.svg"_s));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QMap<QString, QStringList> words; // by element
        QString element;
        while (xml.readNext() != QXmlStreamReader::Invalid && !xml.atEnd()) {
            if (xml.isStartElement()) {
                element = xml.name().toString();
                words[element]; // of an empty one, too
                if (element == u"svg") {
                    EXPECT_EQ(xml.attributes().value("width"), u"158.75mm"); // 600 / 96 inch
                    EXPECT_EQ(xml.attributes().value("xml:lang"), u"de");
                }
            } else if (xml.isCharacters() && !xml.isWhitespace()) {
                words[element] << xml.text().toString();
            }
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        EXPECT_EQ(words.keys(), (QStringList{u"desc"_s, u"path"_s, u"svg"_s, u"text"_s, u"title"_s}));
        EXPECT_EQ(words[u"title"_s], QStringList{u"A & <B>"_s});
        EXPECT_TRUE(words[u"desc"_s].value(0).startsWith(u"300-99: M 38,0; W 52,7; Alle 67,4\n"));
        QStringList shown;
        look.title = u"A & <B>"_s;
        const ChartDrawing drawing(centuries(5), look, {600, 400}, paperStyle());
        for (const PlacedText &text : drawing.layout().texts)
            shown << text.block.text.split(u'\n');
        EXPECT_EQ(words[u"text"_s], shown) << static_cast<int>(type);
    }
}

TEST(Chart, EachFigureIsDrawnWhereItIsHit)
{
    struct Shapes : Canvas {
        void shape(const QPainterPath &path, const QColor &fill, const QPen &pen) override
        {
            QPainterPathStroker line; // dashed or not
            line.setWidth(pen.widthF());
            if (fill.isValid())
                all.push_back({path, fill.rgb()});
            else
                all.push_back({line.createStroke(path), pen.color().rgb()});
        }
        void text(const PlacedText &, const QColor &) override {}
        std::vector<std::pair<QPainterPath, QRgb>> all;
    };
    ChartTable table = centuries(5);
    table.data[1][0] = u"-20"_s;
    for (const ChartType type : test::AllChartTypes) {
        const ChartStyle style = paperStyle();
        const ChartDrawing drawing(table, fullLook(type), {600, 400}, style);
        const ChartSubject &subject = drawing.subject();
        Shapes shapes;
        drawing.draw(shapes);
        for (int column = 0; column < subject.figures.seriesCount(); ++column) {
            for (int row = 0; row < subject.figures.rowCount(); ++row) {
                QPointF place;
                if (type == ChartType::Pie) {
                    const PieSlice slice = pieSlices(subject.figures)[static_cast<std::size_t>(row)];
                    const QRectF circle = drawing.layout().plot;
                    QLineF ray(circle.center(), circle.center() - QPointF(0, circle.height() * 0.45));
                    ray.setAngle(90 - slice.begin - slice.span / 2);
                    place = ray.p2();
                } else if (isBarColumn(subject, column)) {
                    place = barRect(subject, drawing.layout(), column, row).center();
                } else {
                    place = figurePoint(subject, drawing.layout(), column, row);
                }
                const QRgb color = style.seriesColor(type == ChartType::Pie ? row : column).rgb();
                const QRgb line = style.linePen(column).color().rgb();
                const bool drawn = std::any_of(shapes.all.begin(), shapes.all.end(), [&](const auto &each) {
                    return (each.second == color || each.second == line) && each.first.contains(place);
                });
                const auto name = testing::Message() << static_cast<int>(type) << ' ' << column << ' ' << row;
                if (subject.figures.value(column, row) == 0) {
                    EXPECT_FALSE(drawn && type != ChartType::Pie) << name;
                    continue;
                }
                EXPECT_TRUE(drawn) << name;
                const auto hit = figureAt(subject, drawing.layout(), place);
                ASSERT_TRUE(hit) << name;
                EXPECT_TRUE(hit->row == row && hit->column == column) << name;
            }
        }
    }
}

TEST(Chart, FailedWriteIsAnErrorAndLeavesTheOldFile)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"taken.png"_s));
    const struct {
        QString file;
        QSize size;
        basic::ErrorKind kind;
    } cases[] = {{u"c.bmp"_s, {300, 200}, basic::ErrorKind::Refused},
                 {u"c"_s, {300, 200}, basic::ErrorKind::Refused},
                 {u"c.png"_s, {0, 200}, basic::ErrorKind::Refused},
                 {u"c.svg"_s, {99999, 2}, basic::ErrorKind::Refused},
                 {u"none/c.png"_s, {30, 20}, basic::ErrorKind::WriteFailed},
                 {u"taken.png"_s, {30, 20}, basic::ErrorKind::WriteFailed}};
    for (const auto &[name, size, kind] : cases) {
        const auto error = kalvenor::test::thrownBy(
            [&, file = name, sides = size] { writeChart(centuries(1), {}, sides, folder.filePath(file)); });
        ASSERT_TRUE(error) << name.toStdString();
        EXPECT_EQ(error->kind(), kind) << error->what();
        EXPECT_EQ(error->place().file, folder.filePath(name));
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"taken.png"_s});
}

} // namespace
} // namespace kalvenor::chart
