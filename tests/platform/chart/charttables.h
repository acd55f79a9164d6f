// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chart.h"

#include <QPair>

// Charts as the statistic fills them, for tests and for pictures to look at.
namespace kalvenor::chart::test {

using namespace Qt::StringLiterals;

constexpr ChartType AllChartTypes[] = {ChartType::Bar,         ChartType::Line, ChartType::Area, ChartType::Step,
                                       ChartType::Combination, ChartType::Pie,  ChartType::XY};

/// Average ages by century and sex; the third century has nobody. `longLabels`: German words instead of years.
inline ChartTable centuries(int rows, bool longLabels = false)
{
    ChartTable table{{u"M"_s, u"W"_s, u"Alle"_s}, {}, {}};
    if (longLabels)
        table.columnLabels = {u"Männliche Personen mit vollständigen Angaben"_s,
                              u"Weibliche Personen mit vollständigen Angaben"_s, u"Durchschnitt aller Personen"_s};
    for (int row = 0; row < rows; ++row) {
        table.rowLabels << (longLabels ? u"Achtzehnhundertfünfzig bis %1. Jahrhundertviertel"_s.arg(row + 1)
                                       : u" %1-99"_s.arg((row + 3) * 100));
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
    look.title = u"Durchschnittsalter nach Jahrhunderten"_s;
    look.categoryTitle = u"Jahrhundert der Geburt"_s;
    look.valueTitle = u"Alter in Jahren"_s;
    look.emptyText = u"Es sind keine Personen mit Geburts- und Sterbedatum markiert."_s;
    look.locale = QLocale(QLocale::German);
    return look;
}

} // namespace kalvenor::chart::test
