// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfbuilder.h"

#include "platform/richtext/rtfcharacters.h"
#include <QTextBlock>

namespace kalvenor::richtext {

namespace {

// What a document may grow to, some 100 MB at worst; an introduction is a page or two.
constexpr qint64 MostCharacters = 4'000'000;
constexpr int MostRuns = 200'000;
constexpr int MostParagraphs = 100'000;

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
    return m_characters > MostCharacters || m_runs > MostRuns || m_paragraphs > MostParagraphs;
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
    if (m_list != nullptr && m_list->format().indent() == level) {
        m_list->add(m_cursor.block());
        return;
    }
    QTextListFormat format;
    format.setStyle(QTextListFormat::ListDisc);
    format.setIndent(level);
    m_list = m_cursor.createList(format);
}

} // namespace kalvenor::richtext
