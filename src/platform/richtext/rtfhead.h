// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QString>
#include <QTextCharFormat>
#include <string_view>
#include <vector>

namespace kalvenor::richtext {

struct RtfLook;

/// What the head of a text says once: code page, default font, and the tables of fonts and colours.
class RtfHead {
public:
    /// Each answers whether it knows the word.
    bool takeWord(std::string_view word, int value);
    bool takeFontWord(std::string_view word, int value);
    bool takeColorWord(std::string_view word, int value);
    /// What stands between the words of a table.
    void takeFontText(QStringView text);
    void takeColorText(QStringView text);
    void beginColors() { m_openColor = QColor(); }
    void endFont();

    int defaultFont() const { return m_defaultFont; }
    /// In which a text of that font is written.
    int codePage(int font) const;
    /// In which the name of the font at hand is written.
    int nameCodePage() const;
    QTextCharFormat format(const RtfLook &look) const;

private:
    struct Font {
        QString family;
        int codePage = 0; ///< 0: the document's
    };
    QColor color(int number) const;

    int m_codePage = 1252;
    int m_defaultFont = 0;
    QHash<int, Font> m_fonts;
    int m_openFont = 0;
    QString m_fontName;
    std::vector<QColor> m_colors;
    QColor m_openColor; ///< invalid until a component was given
};

} // namespace kalvenor::richtext
