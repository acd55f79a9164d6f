// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <string_view>

namespace kalvenor::richtext {

struct RtfToken {
    enum class Kind {
        GroupStart,
        GroupEnd,
        Word,   ///< `\name`, `\nameN`; \bin with its bytes is passed over
        Symbol, ///< `\` and one character that is no letter: bytes holds it
        Hex,    ///< `\'xx`: value is the byte, without hasValue the two digits are not there
        Text,   ///< bytes as they stand, without line ends
        End
    };
    Kind kind = Kind::End;
    QByteArrayView bytes = {}; ///< a word's name, a symbol's character, the text
    int value = 0;             ///< clamped to 32 bits
    bool hasValue = false;

    std::string_view word() const { return {bytes.data(), static_cast<std::size_t>(bytes.size())}; }
};

/// Takes RTF apart (RTF 1.9.1, "RTF Syntax"). The bytes must outlive it.
class RtfTokenizer {
public:
    explicit RtfTokenizer(QByteArrayView rtf) : m_rtf(rtf) {}

    /// The next token, End for ever once there is none.
    RtfToken next();

private:
    bool atEnd() const { return m_at >= m_rtf.size(); }
    RtfToken control();
    RtfToken hex();
    RtfToken word();
    RtfToken text();
    void passOver(int bytes);

    QByteArrayView m_rtf;
    qsizetype m_at = 0;
};

} // namespace kalvenor::richtext
