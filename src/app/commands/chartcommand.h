// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/commands/listoutput.h"
#include "statistics/figures/grafik.h"
#include <CLI/CLI.hpp>
#include <functional>
#include <QSize>
#include <QString>
#include <string>

namespace kalvenor::app {

/// The figures as `chart` prints them. Text: a table that people read, ages in completed tenths of years. Tab-separated
/// values: the chart's table, a century a line below the columns' labels. JSON: everything, each text exactly as label
/// or chart holds it.
QByteArray chartOutput(const statistics::Grafikzahlen &figures, Format format);

/// The command `chart`.
class ChartCommand {
public:
    /// `addCommon` adds the options that several commands share: --program, --sex, --format.
    void addTo(CLI::App &app, const std::function<void(CLI::App *)> &addCommon);
    bool parsed() const { return m_chart->parsed(); }
    /// Whether a picture is wanted, which needs a QApplication.
    bool draws() const { return parsed() && !m_output.empty(); }
    /// Prints the figures and writes the picture where one is wanted. Returns the exit code; errors of the
    /// engine go to the caller.
    int run(const QString &programFolder, const statistics::GeschlechtAlter &sex, Format format) const;

private:
    CLI::App *m_chart = nullptr;
    std::string m_by = "birth", m_output, m_size = "900x540";
    int m_type = static_cast<int>(chart::ChartType::Bar);
    bool m_noLegend = false;
};

} // namespace kalvenor::app
