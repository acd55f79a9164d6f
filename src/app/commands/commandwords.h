// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>
#include <set>
#include <string>
#include <vector>

namespace kalvenor::app {

enum class Command {
    Window,
    Demo,
    Check,
    List,
    Mark,
    Unmark,
    Ages,
    Chart,
    Report,
    TemplateSave,
    TemplateOpen,
    TemplateReset
};

/// The words of the command line, each checked by itself.
struct Words {
    Command command = Command::Window;
    std::set<std::string> options; ///< of the command, as far as they were given: "--title"
    std::string program;
    std::string templateFile;
    std::string sex = "mw";
    std::string format = "text";
    std::string list = "unmarked";
    std::string folder;
    std::vector<std::string> counters;
    std::string name, from, to;
    std::vector<std::string> dates;
    std::string title, intro, openedFirst, by, output, size = "900x540", file;
    int type = 0;
    bool legend = false, noLegend = false, archive = false, here = false;
    bool all = false;
    bool children = false;
    bool parents = false;
    bool showQuery = false;
    bool verbose = false;
    int persons = 2000;
    quint32 seed = 1;
    qint64 limit = -1;

    bool given(const char *option) const { return options.contains(option); }
};

QString toText(const std::string &word);

/// Reads the command line. Where that is all there is to do (help, version, wrong usage) says so and gives the exit
/// code.
std::optional<int> readWords(int argc, char **argv, Words &words);

} // namespace kalvenor::app
