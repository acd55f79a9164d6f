// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/sequential.h"

#include "platform/basic/error.h"
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

constexpr char EndOfText = '\x1A'; // Ctrl-Z, with which old editors end a file

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

void SequentialWriter::writeText(QByteArrayView ansi)
{
    m_content += '"';
    for (const char c : ansi) {
        m_content += c;
        if (c == '"')
            m_content += c;
    }
    m_content += "\"\r\n";
}

void SequentialWriter::writeNumber(qint64 number)
{
    m_content += QByteArray::number(number) + "\r\n";
}

void SequentialWriter::writeTruth(bool truth)
{
    m_content += truth ? "#TRUE#\r\n" : "#FALSE#\r\n";
}

SequentialReader::SequentialReader(QByteArray content, QString file)
    : m_content(std::move(content)), m_file(std::move(file))
{
    qsizetype end = m_content.size();
    while (end > 0 && (isBlank(at(end - 1)) || isLineEnd(end - 1) || at(end - 1) == EndOfText))
        --end;
    if (m_content.indexOf(EndOfText, end) >= 0)
        m_content.replace(end, m_content.size() - end, "\r\n");
}

bool SequentialReader::atEnd() const
{
    return std::all_of(m_content.begin() + m_position, m_content.end(),
                       [](char c) { return isBlank(c) || c == '\r' || c == '\n'; });
}

Place SequentialReader::place() const
{
    return {.file = m_file, .line = m_itemLine};
}

SequentialItem SequentialReader::next()
{
    skipBlanks();
    m_itemLine = m_line;
    if (m_position >= m_content.size())
        throw Error(Fault::FileEnds, place());
    SequentialItem item;
    if (at(m_position) == '"')
        readQuoted(item);
    else
        readPlain(item);
    item.ended = passSeparator();
    return item;
}

void SequentialReader::skipBlanks()
{
    while (isBlank(at(m_position)))
        ++m_position;
}

void SequentialReader::readQuoted(SequentialItem &item)
{
    item.quoted = true;
    for (qsizetype from = m_position + 1;;) {
        const qsizetype quote = m_content.indexOf('"', from);
        if (quote < 0)
            throw Error(Fault::TextNotClosed, place());
        item.bytes += QByteArrayView(m_content).sliced(from, quote - from);
        if (at(quote + 1) != '"') {
            countLines(m_position, quote);
            m_position = quote + 1;
            break;
        }
        item.bytes += '"';
        from = quote + 2;
    }
    skipBlanks();
    if (m_position < m_content.size() && at(m_position) != ',' && !isLineEnd(m_position))
        throw Error(Fault::TextGoesOn, place());
}

void SequentialReader::readPlain(SequentialItem &item)
{
    const qsizetype from = m_position;
    while (m_position < m_content.size() && at(m_position) != ',' && !isLineEnd(m_position))
        ++m_position;
    item.bytes = m_content.mid(from, m_position - from);
    while (!item.bytes.isEmpty() && isBlank(item.bytes.back()))
        item.bytes.chop(1);
}

/// False at the end of the file.
bool SequentialReader::passSeparator()
{
    if (m_position >= m_content.size())
        return false;
    const qsizetype from = m_position;
    m_position += at(m_position) == '\r' && at(m_position + 1) == '\n' ? 2 : 1;
    countLines(from, m_position);
    return true;
}

void SequentialReader::countLines(qsizetype from, qsizetype to)
{
    for (qsizetype i = from; i < to; ++i) {
        if (at(i) == '\n' || (at(i) == '\r' && at(i + 1) != '\n'))
            ++m_line;
    }
}

} // namespace kalvenor::basic
