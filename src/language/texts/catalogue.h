// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include <QString>
#include <span>

// The wording of every text, in the two languages that the program itself speaks. A host's language database is asked
// first; demonstration hosts get theirs from here. At most 255 characters each, all of Windows-1252.
namespace kalvenor::language {

struct CatalogueText {
    Text id;
    const char16_t *deutsch;
    const char16_t *english;
};

std::span<const CatalogueText> hostTexts();       ///< below 20000: the host's own
std::span<const CatalogueText> windowTexts();     ///< 20000–20499: main window, menus, tool bar, status bar, filter
std::span<const CatalogueText> statisticsTexts(); ///< 20500–20799: tabs, figures, chart, editor
std::span<const CatalogueText> printTexts();      ///< 20800–20999: print settings, preview, report
std::span<const CatalogueText> messageTexts();    ///< 21000 and up: messages, about, first run, help, templates
std::span<const CatalogueText> faultTexts();      ///< 22000 and up: the sentences of errors, by basic::Fault
std::span<const CatalogueText> damageTexts();     ///< from 21600 and 22350 on: damage, the check of an installation

/// All of them, in the order of their numbers.
std::span<const CatalogueText> catalogue();

enum class CatalogueLanguage { German, English };

/// The wording of a text; null where the catalogue does not have it.
QString wording(Text id, CatalogueLanguage language);

} // namespace kalvenor::language
