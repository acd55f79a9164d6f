// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QString>

namespace kalvenor::app {

/// The program with its window, from start to end. `programFolder` gives the program's own folder in Windows notation
/// once Qt runs. What fails before there is a window is shown in a box, or on stderr where there is no display.
/// Returns the exit code.
int runWindow(int &argc, char **argv, const std::function<QString()> &programFolder, const QString &templateFile = {});

} // namespace kalvenor::app
