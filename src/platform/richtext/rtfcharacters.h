// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

// How the bytes of RTF become characters.
namespace kalvenor::richtext {

/// Code pages beside those of Windows (codepage.h) and of the PC, 437 and 850, by the numbers RTF gives them.
struct RtfCodePage {
    static constexpr int Symbol = 42;
    static constexpr int Mac = 10000;
    static constexpr int Utf8 = 65001;
};

constexpr int LongestRtfFontName = 100;

/// The code page for a font's \fcharset; unknown ones (East Asian, 1 = default) have the document's.
int codePageOfCharacterSet(int characterSet, int documentCodePage);
/// An unknown code page is read as 1252.
QString decodeRtf(QByteArrayView bytes, int codePage);
/// What a text in the font Symbol shows for a character, given as 0x20 to 0xFF or as U+F020 to U+F0FF.
char16_t symbolCharacter(char16_t character);
/// Without characters that a text document reserves or cannot show; a half of a pair that lost the other is U+FFFD.
QString shownCharacters(QStringView text);

} // namespace kalvenor::richtext
