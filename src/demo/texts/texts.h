// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

// The texts of the language database. Identifiers below 20000 belong to the host's installation; the program's own
// begin at 20000. At most 255 characters each, all of Windows-1252.
namespace kalvenor::demo {

struct LanguageText {
    int id;
    const char16_t *deutsch;
    const char16_t *english;
};

std::span<const LanguageText> hostTexts();       ///< below 20000
std::span<const LanguageText> windowTexts();     ///< 20000–20499: main window, menus, tool bar, status bar, filter
std::span<const LanguageText> statisticsTexts(); ///< 20500–20799: tabs, figures, chart, editor
std::span<const LanguageText> printTexts();      ///< 20800–20999: print settings, preview
std::span<const LanguageText> messageTexts();    ///< 21000 and up: messages, about, first run, help, templates

} // namespace kalvenor::demo
