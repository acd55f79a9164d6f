// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfbuilder.h"

#include "platform/richtext/rtfcharacters.h"
#include <QTextBlock>

namespace kalvenor::richtext {

namespace {

/// Qt looks at all items of a list for each that comes; discs do not tell one list from the next.
constexpr int MostItems = 500;

} // namespace

void RtfBuilder::append(QStringView text, const QTextCharFormat &format)
{
    if (text.isEmpty() || isFull())
        return;
    if (!m_run.isEmpty() && format != m_format)
        flush();
    m_format = format;
    m_run += text;
    m_characters += text.size();
}

bool RtfBuilder::isFull() const
{
    return m_characters > m_limits.characters || m_runs > m_limits.runs || m_paragraphs > m_limits.paragraphs;
}

void RtfBuilder::begin()
{
    if (!m_begun && m_paragraphs > 0)
        m_cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    m_begun = true;
}

void RtfBuilder::flush()
{
    const QString shown = shownCharacters(m_run);
    m_run.clear();
    if (shown.isEmpty())
        return;
    begin();
    m_cursor.insertText(shown, m_format);
    ++m_runs;
}

void RtfBuilder::endParagraph(const QTextBlockFormat &block, int listLevel, const QTextCharFormat &format)
{
    if (isFull())
        return;
    flush();
    begin();
    m_cursor.setBlockFormat(block);
    if (m_cursor.block().length() == 1)
        m_cursor.setBlockCharFormat(format);
    joinList(listLevel);
    m_begun = false;
    ++m_paragraphs;
}

void RtfBuilder::joinList(int level)
{
    if (level == 0) {
        m_list = nullptr;
        return;
    }
    if (m_list != nullptr && m_list->format().indent() == level && m_list->count() < MostItems) {
        m_list->add(m_cursor.block());
        return;
    }
    QTextListFormat format;
    format.setStyle(QTextListFormat::ListDisc);
    format.setIndent(level);
    m_list = m_cursor.createList(format);
}

} // namespace kalvenor::richtext
