// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/path.h"
#include <QString>
#include <QStringList>

namespace kalvenor::app {

/// What a look at an installation found, a line each.
struct CheckResult {
    QStringList good;  ///< "ok       …"
    QStringList notes; ///< "note     …", nothing wrong
    QStringList problems; ///< "missing  …", "damaged  …", "locked   …": each keeps something from working, once a kind
};

/// Looks at everything the program needs of an installation and goes on behind each problem. Changes nothing. Speaks
/// the host's language: German, or English for all others.
CheckResult checkInstallation(const basic::WindowsPath &programFolder);

/// The command: prints the lines, problems last. 0 where there is no problem, else 1.
int runCheck(const basic::WindowsPath &programFolder);

} // namespace kalvenor::app
