// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kalvenor::app {

/// The whole program behind its command line. Returns the exit code: 0 done, 1 failed, 2 wrong usage.
int runCommandLine(int argc, char **argv);

} // namespace kalvenor::app
