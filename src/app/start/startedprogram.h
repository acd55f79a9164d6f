// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/start/program.h"
#include "platform/desktop/terminal.h"

// What every command begins and ends with.
namespace kalvenor::app {

// Exit codes of commands.
inline constexpr int Done = 0;
inline constexpr int Failed = 1;

/// A program started without windows; `ready` is false where start-up ended it with its own message.
struct StartedProgram {
    explicit StartedProgram(const QString &programFolder) : program(programFolder, desktop), ready(program.Main()) {}
    desktop::TerminalDesktop desktop;
    Program program;
    bool ready;

    /// The exit code of a command that did its work; says on stderr where damage of the file made the result short.
    int done() const;
};

/// One line, or several, on stdout.
void printLine(const QString &line);

} // namespace kalvenor::app
