// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/chart/chartdrawing.h"
#include "platform/chart/charttables.h"

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
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
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
    } cases[] = {{u"38"_s, u"74"_s, 0, 80, 10},        {u"0"_s, u"0"_s, 0, 10, 1},
                 {u"90"_s, u"104.2"_s, 0, 120, 20},    {u"-7"_s, u"30"_s, -10, 30, 5},
                 {u".0027"_s, u".01"_s, 0, .01, .001}, {u"1e-300"_s, u"0"_s, 0, 10, 1}};
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
        std::vector<int> greys{dark ? 0x23 : 0xff};
        for (int i = 0; i < 3; ++i)
            greys.push_back(qGray(seriesColor(i, dark).rgb()));
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
    for (const QString &name : {u"c.png"_s, u"c.JPG"_s, u"c.jpeg"_s, u"c.svg"_s}) {
        const QString file = folder.filePath(name);
        writeChart(centuries(5), look, {600, 400}, file, 80);
        QImageReader reader(file);
        reader.setDecideFormatFromContent(true);
        const QByteArray format = name.right(3).toLower().toLatin1();
        EXPECT_EQ(reader.format(), format == "png" || format == "svg" ? format : QByteArray("jpeg"));
        if (format != "svg") { // which has its size in millimetres
            EXPECT_EQ(reader.size(), QSize(600, 400)) << name.toStdString();
        }
        EXPECT_FALSE(isUniform(reader.read()));
    }
    QFile svg(folder.filePath(u"c.svg"_s));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&svg);
    QString texts;
    while (!xml.atEnd()) {
        xml.readNext();
        texts += xml.text();
        if (xml.isStartElement() && xml.name() == u"svg") {
            EXPECT_EQ(xml.attributes().value("width"), u"158.75mm"); // 600 / 96 inch
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_TRUE(texts.contains(u"A & <B>") && texts.contains(u"700-99: 74,0"));
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
        try {
            writeChart(centuries(1), {}, size, folder.filePath(name));
            ADD_FAILURE() << name.toStdString();
        } catch (const basic::Error &error) {
            EXPECT_EQ(error.kind(), kind) << error.what();
            EXPECT_EQ(error.place(), folder.filePath(name));
        }
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"taken.png"_s});
}

} // namespace
} // namespace kalvenor::chart
