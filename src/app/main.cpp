// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"

#include <csignal>

int main(int argc, char **argv)
{
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN); // a file beyond the user's limit is a write that fails and is told
#endif
    return kalvenor::app::runCommandLine(argc, argv);
}
