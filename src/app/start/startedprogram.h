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
inline constexpr int Misused = 2;

/// A program started without windows; `ready` is false where start-up ended it with its own message, and a line on
/// stderr says which database was looked for.
struct StartedProgram {
    explicit StartedProgram(const basic::WindowsPath &programFolder);
    desktop::TerminalDesktop desktop;
    Program program;
    bool ready;

    /// What is shown on the terminal while the command does this.
    QString progress(language::Text what);
    /// The exit code of a command that did its work; says on stderr where damage of a file made the result short,
    /// and where another program changed the family database meanwhile.
    int done();
};

/// That no folder is known for the path's drive, and where to name it.
QString unknownDrive(const host::Host &host, const basic::WindowsPath &path, language::CatalogueLanguage language);

/// What a command shows on the terminal while it does this.
QString progressLine(const QString &what, language::CatalogueLanguage language);

/// One line, or several, on stdout.
void printLine(const QString &line);

} // namespace kalvenor::app
