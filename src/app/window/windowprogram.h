// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kalvenor::app {

/// The program with its window, from start to end. `programFolder` is the program's own folder, a native path; empty:
/// the executable's or the one used last. What fails before there is a window is shown with ways on, or on stderr where
/// there is no display. Returns the exit code.
int runWindow(int &argc, char **argv, const QString &programFolder, const QString &templateFile = {});

} // namespace kalvenor::app
