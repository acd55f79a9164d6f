// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/commands/listoutput.h"
#include "selection/marking/marking.h"
#include "statistics/ages/altersliste.h"
#include <optional>
#include <QString>
#include <vector>

// One function a command. Results go to stdout, progress and messages to stderr; the value is the exit code.
// Errors of the engine go to the caller.
namespace kalvenor::app {

struct DemoCommand {
    QString folder;
    int persons = 2000;
    quint32 seed = 1;
};

struct ListCommand {
    QString query; ///< of the list
    Format format = Format::Text;
    qint64 limit = -1; ///< -1: all
};

struct MarkCommand {
    bool mark = true;             ///< false: unmark
    std::optional<QString> query; ///< all persons of the list with this query, else those named
    std::vector<qint32> counters;
    selection::Relatives relatives;
};

struct AgesCommand {
    statistics::GeschlechtAlter sex{1, 1, 1, 1};
    Format format = Format::Text;
};

int runDemo(const DemoCommand &command);
int runList(const basic::WindowsPath &programFolder, const ListCommand &command);
int runMark(const basic::WindowsPath &programFolder, const MarkCommand &command);
int runAges(const basic::WindowsPath &programFolder, const AgesCommand &command);

} // namespace kalvenor::app
