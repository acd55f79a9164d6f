// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfbuilder.h"
#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtftokenizer.h"
#include <QColor>
#include <QHash>
#include <vector>

namespace kalvenor::richtext {

/// Reads one RTF text into an empty document; readRtf is what others call.
class RtfParser {
public:
    RtfParser(QByteArrayView rtf, QTextDocument &document);
    RtfResult parse();

private:
    enum class Destination { Text, Skip, Fonts, Colors, Bullet, Numbering };
    struct CharacterState {
        int font = 0;
        int halfPoints = 24;
        int foreground = 0;
        int background = 0;
        bool bold = false, italic = false, underline = false, strikeOut = false, hidden = false;
    };
    struct ParagraphState {
        Qt::Alignment alignment = Qt::AlignLeft;
        int left = 0, first = 0, right = 0, before = 0, after = 0; ///< twips
        int list = 0;                                              ///< of the list table, 0 none
        int level = 0;
        bool bullets = false; ///< numbered by \pn with bullets
    };
    struct State {
        Destination destination = Destination::Text;
        CharacterState character;
        ParagraphState paragraph;
        int fallback = 1; ///< \uc: characters after \u that stand for it elsewhere
    };
    struct Font {
        QString family;
        int codePage = 0; ///< 0: the document's
    };

    void take(const RtfToken &token);
    void startGroup();
    void endGroup();
    bool passOverFallback(const RtfToken &token);
    void takeWord(const RtfToken &token);
    bool destinationWord(QByteArrayView name);
    bool headWord(const RtfToken &token);
    bool characterWord(const RtfToken &token);
    bool paragraphWord(const RtfToken &token);
    bool structureWord(QByteArrayView name);
    void takeSymbol(char symbol);
    void takeUnicode(int value);

    void takeBytes(QByteArrayView bytes);
    void flushBytes();
    void takeText(const QString &text);
    void takeFontText(QStringView text);
    void takeColorText(QStringView text);
    void endFont();

    void insert(QStringView text);
    void breakLine();
    void endParagraph();
    void endBullet();
    void endRow();

    int codePage() const;
    QColor color(int index) const;
    const QTextCharFormat &format();

    RtfTokenizer m_tokens;
    RtfBuilder m_builder;
    RtfResult m_result;
    State m_state;
    std::vector<State> m_outer;
    int m_tooDeep = 0;        ///< groups open beyond the deepest that are kept
    bool m_ended = false;     ///< the document's own group was closed
    bool m_ignorable = false; ///< after \*
    int m_toPassOver = 0;     ///< characters still to leave out after \u
    int m_codePage = 1252;
    int m_defaultFont = 0;
    QHash<int, Font> m_fonts;
    int m_openFont = 0;
    QString m_fontName;
    std::vector<QColor> m_colors;
    QColor m_openColor; ///< invalid until a component was given

    QByteArray m_bytes; ///< in the current font's code page, not yet decoded
    QString m_bulletText;
    bool m_numberingBullets = false;
    bool m_isBullet = false;        ///< the open paragraph has a bullet of its own
    bool m_touched = false;         ///< the open paragraph has something
    int m_lines = 0, m_cells = 0;   ///< line breaks and cell ends that wait for what follows
    ParagraphState m_lastParagraph; ///< as at the last text or line break
    QTextCharFormat m_lastFormat;   ///< the same
    QTextCharFormat m_format;
    bool m_formatKnown = false;
};

} // namespace kalvenor::richtext
