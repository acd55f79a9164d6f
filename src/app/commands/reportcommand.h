// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/commands/statistikwords.h"
#include <QString>

namespace kalvenor::app {

/// The same report as from the window.
struct ReportCommand {
    StatistikWords statistik;
    QString vorlage; ///< the template to open first, native path; empty for none
    QString output;  ///< native path, ending in .pdf, .rtf or .html
    bool archive = false;
};

/// Returns the exit code; errors of the engine go to the caller. Needs a QApplication.
int runReport(const basic::WindowsPath &programFolder, const ReportCommand &command);

} // namespace kalvenor::app
