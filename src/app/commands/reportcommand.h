// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/ages/altersliste.h"
#include <CLI/CLI.hpp>
#include <functional>
#include <QString>
#include <string>

namespace kalvenor::app {

/// The command `report`: the same report as from the window, as PDF, RTF or HTML.
class ReportCommand {
public:
    /// `addCommon` adds the options that several commands share: --program, --sex.
    void addTo(CLI::App &app, const std::function<void(CLI::App *)> &addCommon);
    bool parsed() const { return m_report->parsed(); }
    /// Returns the exit code; errors of the engine go to the caller. Needs a QApplication.
    int run(const QString &programFolder, const statistics::GeschlechtAlter &sex) const;

private:
    /// What was said on the command line goes before what a template says.
    void apply(statistics::Statistik &statistik, const statistics::GeschlechtAlter &sex) const;
    /// Native: the file itself, else the template that holds the introduction.
    QString introductionFile() const;
    bool given(const char *option) const { return m_report->count(option) > 0; }

    CLI::App *m_report = nullptr;
    std::string m_title, m_intro, m_template, m_by, m_output;
    int m_type = 0;
    bool m_noLegend = false;
    bool m_archive = false;
};

} // namespace kalvenor::app
