// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// chartpictures DIR: writes PNG pictures of typical charts, named by what they show.
#include "platform/basic/error.h"
#include "platform/chart/chartcontrol.h"
#include "platform/chart/chartpicture.h"
#include "platform/chart/charttables.h"

#include <cstdio>
#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

using namespace kalvenor::chart;

constexpr QSize SmallPicture(300, 200);
constexpr QSize Middle(600, 400);
constexpr QSize LargePicture(1200, 800);

void picture(const QString &folder, const QString &name, const ChartTable &table, const ChartLook &look, QSize size,
             double dpi = 96)
{
    writeChart(table, look, size, folder + u'/' + name + u".png"_s, 90, dpi);
}

void pictures(const QString &folder)
{
    for (const ChartType type : test::AllChartTypes) {
        const QString kind = u"type%1-"_s.arg(static_cast<int>(type), 2, 10, QLatin1Char('0'));
        for (const int rows : {1, 5, 20}) {
            const QString name = kind + u"%1rows-"_s.arg(rows, 2, 10, QLatin1Char('0'));
            ChartLook look = test::fullLook(type);
            picture(folder, name + u"middle"_s, test::centuries(rows), look, Middle);
            picture(folder, name + u"small"_s, test::centuries(rows), look, SmallPicture);
            picture(folder, name + u"small-long"_s, test::centuries(rows, true), look, SmallPicture);
            look.values = true;
            look.legend = false;
            picture(folder, name + u"middle-long-values"_s, test::centuries(rows, true), look, Middle);
            for (const int factor : {1, 8}) {
                look.fontFactor = factor;
                look.legend = true;
                picture(folder, name + u"middle-font%1-values"_s.arg(factor), test::centuries(rows), look, Middle);
                picture(folder, name + u"small-font%1"_s.arg(factor), test::centuries(rows), look, SmallPicture);
            }
        }
        ChartLook look = test::fullLook(type);
        picture(folder, kind + u"large"_s, test::centuries(20), look, LargePicture);
        picture(folder, kind + u"300dpi"_s, test::centuries(5), look, Middle * 300 / 96, 300);
        ChartControl control;
        QPalette dark;
        dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
        dark.setColor(QPalette::Text, QColor(0xef, 0xf0, 0xf1));
        control.setPalette(dark);
        look.values = true;
        control.setLook(look);
        control.setTable(test::centuries(5));
        control.resize(Middle);
        control.grab().save(folder + u'/' + kind + u"dark.png"_s);
    }
    picture(folder, u"empty-small"_s, {}, test::fullLook(ChartType::Bar), SmallPicture);
    picture(folder, u"empty-middle"_s, {}, test::fullLook(ChartType::Bar), Middle);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: chartpictures DIR\n", stderr);
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    try {
        const QString folder = QString::fromLocal8Bit(argv[1]);
        QDir().mkpath(folder);
        pictures(folder);
    } catch (const kalvenor::basic::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
