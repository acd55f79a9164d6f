// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/richtext/rtfreader.h"
#include <QPointer>
#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextList>

class QTextDocument;

namespace kalvenor::richtext {

/// Fills an empty document from its beginning, paragraph by paragraph. Characters that a text document reserves or
/// cannot show are left out. Once it is full nothing more is taken.
class RtfBuilder {
public:
    RtfBuilder(QTextDocument &document, const RtfLimits &limits) : m_cursor(&document), m_limits(limits) {}

    void append(QStringView text, const QTextCharFormat &format);
    /// `listLevel` from 1 makes it an item of a list, 0 none; the format is for what is typed into an empty one.
    void endParagraph(const QTextBlockFormat &block, int listLevel, const QTextCharFormat &format);
    /// Without a paragraph that was not begun.
    bool paragraphIsEmpty() const { return !m_begun && m_run.isEmpty(); }
    bool hasParagraphs() const { return m_paragraphs > 0; }
    bool isFull() const;

private:
    void begin();
    void flush();
    void joinList(int level);

    QTextCursor m_cursor;
    RtfLimits m_limits;
    QString m_run;
    QTextCharFormat m_format;
    bool m_begun = false; ///< the open paragraph has text in the document
    QPointer<QTextList> m_list;
    qint64 m_characters = 0;
    int m_runs = 0;
    int m_paragraphs = 0; ///< ended
};

} // namespace kalvenor::richtext
