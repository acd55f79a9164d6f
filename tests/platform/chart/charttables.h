// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chart.h"

#include <QPair>

// Charts as the statistic fills them, for tests and for pictures to look at.
namespace kalvenor::test {

constexpr ChartType allChartTypes[] = {ChartType::Bar,         ChartType::Line, ChartType::Area, ChartType::Step,
                                       ChartType::Combination, ChartType::Pie,  ChartType::XY};

/// Average ages by century and sex; the third century has nobody. `longLabels`: German words instead of years.
inline ChartTable centuries(int rows, bool longLabels = false)
{
    ChartTable table{{QStringLiteral("M"), QStringLiteral("W"), QStringLiteral("Alle")}, {}, {}};
    if (longLabels)
        table.columnLabels = {QStringLiteral("Männliche Personen mit vollständigen Angaben"),
                              QStringLiteral("Weibliche Personen mit vollständigen Angaben"),
                              QStringLiteral("Durchschnitt aller Personen")};
    for (int row = 0; row < rows; ++row) {
        table.rowLabels << (longLabels
                                ? QStringLiteral("Achtzehnhundertfünfzig bis %1. Jahrhundertviertel").arg(row + 1)
                                : QStringLiteral(" %1-99").arg((row + 3) * 100));
        QStringList cells;
        for (int column = 0; column < 3; ++column)
            cells << QString::number(row == 2 ? 0 : 38 + (row * 37 + column * 11) % 29 + column * 3.7 + row * 0.9);
        table.data.push_back(cells);
    }
    return table;
}

inline ChartLook fullLook(ChartType type)
{
    ChartLook look;
    look.type = type;
    look.title = QStringLiteral("Durchschnittsalter nach Jahrhunderten");
    look.categoryTitle = QStringLiteral("Jahrhundert der Geburt");
    look.valueTitle = QStringLiteral("Alter in Jahren");
    look.emptyText = QStringLiteral("Es sind keine Personen mit Geburts- und Sterbedatum markiert.");
    look.locale = QLocale(QLocale::German);
    return look;
}

} // namespace kalvenor::test
