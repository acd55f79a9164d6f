// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfflow.h"
#include "platform/richtext/rtfhead.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtftokenizer.h"
#include "platform/richtext/rtfwords.h"
#include <vector>

namespace kalvenor::richtext {

/// Reads one RTF text into an empty document; readRtf is what others call.
class RtfParser {
public:
    RtfParser(QByteArrayView rtf, QTextDocument &document, const RtfLimits &limits);
    RtfResult parse();

private:
    enum class Destination { Text, Skip, Fonts, Colors, Bullet, Numbering };
    struct State {
        Destination destination = Destination::Text;
        RtfLook look;
        bool hidden = false;
        RtfOpenParagraph paragraph;
        int fallback = 1; ///< \uc: characters after \u that stand for it elsewhere
    };

    bool onlyBlanksFollow();
    void take(const RtfToken &token);
    void startGroup();
    void endGroup();
    bool passOverFallback(const RtfToken &token);
    void takeWord(const RtfToken &token);
    bool destinationWord(std::string_view word);
    bool headWord(const RtfToken &token);
    bool characterWord(const RtfToken &token);
    bool paragraphWord(const RtfToken &token);
    void structureWord(std::string_view word);
    void takeSymbol(QByteArrayView sign);
    void takeUnicode(int value);
    void flushBytes();
    void takeText(const QString &text);
    int codePage() const;
    RtfFlow::Formats formats();

    RtfTokenizer m_tokens;
    RtfFlow m_flow;
    RtfHead m_head;
    RtfResult m_result;
    State m_state;
    std::vector<State> m_outer;
    int m_tooDeep = 0;        ///< groups open beyond the deepest that are kept
    bool m_ended = false;     ///< the document's own group was closed
    bool m_ignorable = false; ///< after \*
    int m_toPassOver = 0;     ///< characters still to leave out after \u
    QByteArray m_bytes;       ///< in the current font's code page, not yet decoded
    QString m_bulletText;
    bool m_numberingBullets = false;
    QTextCharFormat m_format; ///< of the state's look
    bool m_formatKnown = false;
};

} // namespace kalvenor::richtext
