// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfbuilder.h"
#include "platform/richtext/rtfwords.h"
#include <QTextCharFormat>

namespace kalvenor::richtext {

/// A paragraph's format while it is read.
struct RtfOpenParagraph : RtfParagraph {
    int list = 0;         ///< of the list table, 0 none
    int level = 0;        ///< in it
    bool bullets = false; ///< numbered by \pn with bullets
};

/// Text, line breaks, cells and bullets on their way into paragraphs. Each call names the formats that hold there.
class RtfFlow {
public:
    RtfFlow(QTextDocument &document, const RtfLimits &limits) : m_builder(document, limits) {}

    struct Formats {
        const RtfOpenParagraph &paragraph;
        const QTextCharFormat &character;
    };
    void insert(QStringView text, const Formats &formats);
    void breakLine(const Formats &formats);
    void endParagraph(const Formats &formats);
    /// Ends the paragraph where it has something.
    void endPage(const Formats &formats);
    void endCell();
    void endRow(const Formats &formats);
    /// What stands for a bullet or a number where bullets are not known.
    void takeBullet(const QString &text, const Formats &formats);
    /// The end of the text; `character` is for a document that got nothing.
    void finish(const QTextCharFormat &character);
    bool isFull() const { return m_builder.isFull(); }

private:
    RtfBuilder m_builder;
    bool m_isBullet = false;          ///< the open paragraph has a bullet of its own
    bool m_touched = false;           ///< the open paragraph has something
    int m_lines = 0, m_cells = 0;     ///< line breaks and cell ends that wait for what follows
    RtfOpenParagraph m_lastParagraph; ///< as at the last text or line break
    QTextCharFormat m_lastFormat;     ///< the same
};

} // namespace kalvenor::richtext
