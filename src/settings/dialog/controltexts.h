// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include <array>
#include <QString>

namespace kalvenor::settings {

using namespace Qt::StringLiterals;

/// The texts that the print control shows to users. A host's texts may lack a place or a choice.
struct ControlTexts {
    QString printingCaption = u"Drucken..."_s; ///< of the dialog shown while pages are printed
    QString cancel = u"Cancel"_s;
    QString device = u"on the %s on %s"_s;
    QString page = u"Now printing Page %d of"_s;
    QString zoomChoices = u"Whole &Page|Page &Width|&Two Pages|Thumb&nail"_s;

    /// Replaces all five by the language's.
    void load(language::Sprachmodul &texts);

    /// "on the Office printer on Room 5"; what has no place in the text follows it.
    QString deviceLine(const QString &printer, const QString &place) const;
    /// "Now printing Page 3 of 17", counted from 1.
    QString pageLine(int number, int total) const;
    /// Whole page, page width, two pages, thumbnails, each with its mnemonic.
    std::array<QString, 4> zooms() const;
};

} // namespace kalvenor::settings
