// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

#include <QByteArray>
#include <QStringView>
#include <vector>

namespace kalvenor::print {

/// Adds a text in seven bits; line ends become \line, other control characters blanks.
void appendRtfText(QByteArray &out, QStringView text);

/// The tables at the head of an RTF file that styles refer to, and each style's words.
class RtfStyles {
public:
    explicit RtfStyles(const std::vector<TextStyle> &styles);

    /// Font and colour tables.
    const QByteArray &tables() const { return m_tables; }
    /// Font, size, colour and kind, without the background; ends with a blank.
    const QByteArray &words(StyleId style) const { return m_words[static_cast<std::size_t>(style)]; }
    /// The background's place in the colour table; 0 for none.
    int background(StyleId style) const { return m_backgrounds[static_cast<std::size_t>(style)]; }

private:
    QByteArray m_tables;
    std::vector<QByteArray> m_words;
    std::vector<int> m_backgrounds;
};

} // namespace kalvenor::print
