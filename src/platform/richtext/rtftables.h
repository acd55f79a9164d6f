// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QRgb>
#include <QString>
#include <string_view>
#include <vector>

// The tables at the head of RTF that is written; their entries are numbered in the order in which they come.
namespace kalvenor::richtext {

class RtfFonts {
public:
    /// The font's number; its name without characters that RTF or a list of fonts cannot hold, -1 where nothing is
    /// left of it. `kind` is the word for what to take where the font is not at hand.
    int place(const QString &family, std::string_view kind = "fnil");
    /// The number of the font Symbol, as which no other is found.
    int symbols();
    /// `{\fonttbl…}`; in names these characters stand by their codes.
    QByteArray table(std::u16string_view byCode = {}) const;

private:
    struct Font {
        QString family;
        std::string_view kind;
    };
    std::vector<Font> m_fonts;
    QHash<QString, int> m_places; ///< by name, without the font Symbol
    int m_symbols = -1;
};

class RtfColors {
public:
    /// The colour's number, from 1; 0 is the reader's own.
    int place(QRgb color);
    bool isEmpty() const { return m_colors.empty(); }
    /// `\redN\greenN\blueN;` for each.
    QByteArray entries() const;

private:
    std::vector<QRgb> m_colors;
    QHash<QRgb, int> m_numbers;
};

} // namespace kalvenor::richtext
