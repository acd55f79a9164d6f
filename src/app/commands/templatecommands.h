// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <QString>
#include <string>

namespace kalvenor::app {

/// The command `template` with its commands `save`, `open` and `reset`.
class TemplateCommands {
public:
    /// `addProgram` adds the option --program to a command.
    void addTo(CLI::App &app, const std::function<void(CLI::App *)> &addProgram);
    bool parsed() const { return m_template->parsed(); }
    /// Runs the command that was named. Returns the exit code; errors of the engine go to the caller.
    int run(const QString &programFolder) const;

private:
    void addOptions();
    int save(const QString &programFolder) const;
    int open(const QString &programFolder) const;
    int reset(const QString &programFolder) const;

    std::string m_file, m_title, m_intro, m_sex, m_by;
    int m_type = 0;
    bool m_legend = false, m_noLegend = false;
    bool m_here = false;
    CLI::App *m_template = nullptr, *m_save = nullptr, *m_open = nullptr, *m_reset = nullptr;
};

} // namespace kalvenor::app
