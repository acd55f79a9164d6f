// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"

int main(int argc, char **argv)
{
    return kalvenor::app::runCommandLine(argc, argv);
}
