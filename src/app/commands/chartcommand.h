// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/commands/listoutput.h"
#include "app/commands/statistikwords.h"
#include "statistics/figures/grafik.h"
#include <QSize>
#include <QString>

namespace kalvenor::app {

/// The figures as `chart` prints them. Text: a table that people read, ages in completed tenths of years. Tab-separated
/// values: the chart's table, a century a line below the columns' labels. JSON: everything, each text exactly as label
/// or chart holds it.
QByteArray chartOutput(const statistics::Grafikzahlen &figures, Format format);

struct ChartCommand {
    StatistikWords statistik;
    Format format = Format::Text;
    QString output; ///< the picture to write, native path; empty for none
    QSize size;     ///< of it, pixels
};

/// Prints the figures and writes the picture where one is wanted, which needs a QGuiApplication. Returns the exit code;
/// errors of the engine go to the caller.
int runChart(const basic::WindowsPath &programFolder, const ChartCommand &command);

/// "900x540", each side 1 to 20000; invalid for anything else.
QSize pictureSize(const QString &word);

} // namespace kalvenor::app
