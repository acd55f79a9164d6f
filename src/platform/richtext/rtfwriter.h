// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

class QTextDocument;

namespace kalvenor::richtext {

/// The document as 7-bit RTF in the form of the classic control: bold, italic, underline, strike-out, font, size,
/// colours, alignment, indents, spacing and bullets; pictures and tables' frames are left out. What readRtf reads from
/// it is written the same again.
/// So that blunt replacements in the text do no harm, `\fsN` is followed by a backslash or a blank, a backslash of
/// the text stands as `\'5c`, and no word of the form holds an underscore.
QByteArray writeRtf(const QTextDocument &document);

} // namespace kalvenor::richtext
