// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

class QTextDocument;

// Rich text of classic controls and of office programs (RTF 1.9.1, as published by its maker) into a text document.
namespace kalvenor::richtext {

/// Lengths of block formats are pixels at 96 to the inch, so many twips each.
constexpr int TwipsPerPixel = 15;
/// A list's level moves its text so many twips to the right (the indent width of a QTextDocument).
constexpr int TwipsPerListLevel = 40 * TwipsPerPixel;
/// Font sizes beyond are made smaller, in half points.
constexpr int LargestHalfPoints = 1600;

/// Bytes; pictures, which are left out, make the file of a text large.
constexpr qint64 LargestRtfFile = 256LL * 1024 * 1024;

/// What a document may grow to; far beyond what persons write.
struct RtfLimits {
    qint64 characters = 50'000'000;
    int runs = 5'000'000; ///< texts of one format
    int paragraphs = 5'000'000;
};

/// What a text held beside what the document now shows.
struct RtfResult {
    bool isRtf = true;     ///< false: it was taken as plain text
    bool damaged = false;  ///< groups do not match, or it ends in the middle or before its end; the rest was read
    bool tooLarge = false; ///< only the beginning was read
    bool pictures = false; ///< or embedded objects: left out
    bool tables = false;   ///< shown as lines with tabs
    bool others = false;   ///< headers, footers, notes, text boxes, hidden or deleted text: left out

    bool everythingShown() const { return !(damaged || tooLarge || pictures || tables || others); }
};

/// Begins as RTF does: `{\rtf`, or a colour table and then `\rtf`, as rtfanpassen makes it.
bool looksLikeRtf(QByteArrayView text);

/// Replaces the document's content; its default font stays and its undo history is cleared. Every character of RTF gets
/// a size and, where the text names one, a font family; bullets become lists of discs. What is not RTF is read as plain
/// text (UTF-8, UTF-16 with its mark, else Windows-1252). Never fails.
RtfResult readRtf(QByteArrayView rtf, QTextDocument &document, const RtfLimits &limits = {});
/// The same for what must not lack its end: throws Error(Overflow), which names the limits, where it is too large.
/// `file` is where the text came from, empty where it came from none.
void readWholeRtf(QByteArrayView rtf, QTextDocument &document, const QString &file, const RtfLimits &limits = {});

/// The bytes for RTF that is kept in a string read as Windows-1252: what that lacks becomes `\uN?`. Plain text gives
/// UTF-8. readRtf takes both.
QByteArray rtfBytes(const QString &rtf);

} // namespace kalvenor::richtext
