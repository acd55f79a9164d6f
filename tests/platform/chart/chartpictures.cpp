// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// chartpictures DIR: writes PNG pictures of typical charts, named by what they show.
#include "platform/basic/error.h"
#include "platform/chart/chartcontrol.h"
#include "platform/chart/charttables.h"

#include <cstdio>
#include <QApplication>
#include <QDir>

namespace {

using namespace kalvenor;

constexpr QSize small(300, 200);
constexpr QSize middle(600, 400);
constexpr QSize large(1200, 800);

void picture(const QString &folder, const QString &name, const ChartTable &table, const ChartLook &look, QSize size,
             double dpi = 96)
{
    writeChart(table, look, size, folder + u'/' + name + QStringLiteral(".png"), 90, dpi);
}

void pictures(const QString &folder)
{
    for (const ChartType type : test::allChartTypes) {
        const QString kind = QStringLiteral("type%1-").arg(static_cast<int>(type), 2, 10, QLatin1Char('0'));
        for (const int rows : {1, 5, 20}) {
            const QString name = kind + QStringLiteral("%1rows-").arg(rows, 2, 10, QLatin1Char('0'));
            ChartLook look = test::fullLook(type);
            picture(folder, name + QStringLiteral("middle"), test::centuries(rows), look, middle);
            picture(folder, name + QStringLiteral("small"), test::centuries(rows), look, small);
            picture(folder, name + QStringLiteral("small-long"), test::centuries(rows, true), look, small);
            look.values = true;
            look.legend = false;
            picture(folder, name + QStringLiteral("middle-long-values"), test::centuries(rows, true), look, middle);
            for (const int factor : {1, 8}) {
                look.fontFactor = factor;
                look.legend = true;
                picture(folder, name + QStringLiteral("middle-font%1-values").arg(factor), test::centuries(rows), look,
                        middle);
                picture(folder, name + QStringLiteral("small-font%1").arg(factor), test::centuries(rows), look, small);
            }
        }
        ChartLook look = test::fullLook(type);
        picture(folder, kind + QStringLiteral("large"), test::centuries(20), look, large);
        picture(folder, kind + QStringLiteral("300dpi"), test::centuries(5), look, middle * 300 / 96, 300);
        ChartControl control;
        QPalette dark;
        dark.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
        dark.setColor(QPalette::Text, QColor(0xef, 0xf0, 0xf1));
        control.setPalette(dark);
        look.values = true;
        control.setLook(look);
        control.setTable(test::centuries(5));
        control.resize(middle);
        control.grab().save(folder + u'/' + kind + QStringLiteral("dark.png"));
    }
    picture(folder, QStringLiteral("empty-small"), {}, test::fullLook(ChartType::Bar), small);
    picture(folder, QStringLiteral("empty-middle"), {}, test::fullLook(ChartType::Bar), middle);
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
    } catch (const Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
