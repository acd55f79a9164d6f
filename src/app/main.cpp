// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/commandline.h"
#include "platform/storage/storage.h"

int main(int argc, char **argv)
{
    kalvenor::storage::tellFileSizeLimit();
    return kalvenor::app::runCommandLine(argc, argv);
}
