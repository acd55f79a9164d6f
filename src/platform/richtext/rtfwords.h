// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QByteArray>
#include <Qt>
#include <string_view>

// The words of RTF that are read and written, and how a character becomes one.
namespace kalvenor::richtext {

/// A run's look.
struct RtfLook {
    int font = 0; ///< of the font table
    int halfPoints = 24;
    int foreground = 0; ///< of the colour table, 0 none
    int background = 0;
    bool bold = false, italic = false, underline = false, strikeOut = false;
};

struct RtfFlag {
    std::string_view on, off; ///< words, without backslash
    bool RtfLook::*flag;
};
inline constexpr RtfFlag RtfBold{"b", "b0", &RtfLook::bold};
inline constexpr RtfFlag RtfItalic{"i", "i0", &RtfLook::italic};
inline constexpr RtfFlag RtfUnderline{"ul", "ulnone", &RtfLook::underline};
inline constexpr RtfFlag RtfStrikeOut{"strike", "strike0", &RtfLook::strikeOut};
inline constexpr std::array RtfFlags{RtfBold, RtfItalic, RtfUnderline, RtfStrikeOut};

struct RtfParagraph {
    Qt::Alignment alignment = Qt::AlignLeft;
    int left = 0, first = 0, right = 0, before = 0, after = 0; ///< twips

    bool operator==(const RtfParagraph &) const = default;
};

struct RtfLength {
    std::string_view word;
    int RtfParagraph::*length;
    bool isSigned = false;
};
inline constexpr std::array RtfLengths{RtfLength{"fi", &RtfParagraph::first, true},
                                       RtfLength{"li", &RtfParagraph::left}, RtfLength{"ri", &RtfParagraph::right},
                                       RtfLength{"sb", &RtfParagraph::before}, RtfLength{"sa", &RtfParagraph::after}};

struct RtfAlignment {
    std::string_view word;
    Qt::AlignmentFlag alignment;
};
inline constexpr std::array RtfAlignments{RtfAlignment{"ql", Qt::AlignLeft}, RtfAlignment{"qc", Qt::AlignHCenter},
                                          RtfAlignment{"qr", Qt::AlignRight}, RtfAlignment{"qj", Qt::AlignJustify}};

/// The character a control word stands for ("emdash", "tab"), 0 where it stands for none.
char16_t specialCharacter(std::string_view word);
/// The same for a backslash and one sign (`\~`, `\-`, `\_`, a tab).
char16_t specialCharacter(char sign);

/// `\word`
QByteArray rtfWord(std::string_view word);
/// `\wordN`
QByteArray rtfWord(std::string_view word, int value);

/// A character of UTF-16 in seven bits: a backslash or a brace escaped, a tab as `\tab `, all beyond ASCII by its code.
void appendRtf(QByteArray &out, char16_t unit);
/// As `\'xx` where Windows-1252 has it, else as `\uN?` with N as a signed number.
void appendRtfCode(QByteArray &out, char16_t unit);

} // namespace kalvenor::richtext
