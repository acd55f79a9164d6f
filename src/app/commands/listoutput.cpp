// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/listoutput.h"

#include "platform/desktop/terminal.h"

namespace kalvenor::app {

namespace {

constexpr qsizetype BufferSize = 1 << 16;

void appendJsonText(QByteArray &json, QStringView text)
{
    json += '"';
    for (const char byte : text.toUtf8()) {
        if (byte == '"' || byte == '\\')
            json.append('\\').append(byte);
        else if (static_cast<unsigned char>(byte) < 0x20)
            json += "\\u" + QByteArray::number(byte, 16).rightJustified(4, '0');
        else
            json += byte;
    }
    json += '"';
}

/// Tabs and line ends inside a text would break the columns and become blanks.
QByteArray tsvText(QStringView text)
{
    QByteArray utf8 = text.toUtf8();
    for (char &byte : utf8) {
        if (byte == '\t' || byte == '\n' || byte == '\r')
            byte = ' ';
    }
    return utf8;
}

} // namespace

QByteArray jsonText(QStringView text)
{
    QByteArray json;
    appendJsonText(json, text);
    return json;
}

ListOutput::ListOutput(Format format, const char *textKey) : m_format(format), m_textKey(textKey)
{
    m_buffer.reserve(BufferSize + 1024);
}

void ListOutput::add(qint32 counter, QStringView text)
{
    switch (m_format) {
    case Format::Text:
        m_buffer += text.toUtf8();
        m_buffer += '\n';
        break;
    case Format::Tsv:
        m_buffer += QByteArray::number(counter);
        m_buffer += '\t';
        m_buffer += tsvText(text);
        m_buffer += '\n';
        break;
    case Format::Json:
        m_buffer += m_first ? "[\n" : ",\n";
        m_buffer += "{\"counter\":" + QByteArray::number(counter) + ",\"" + m_textKey + "\":";
        appendJsonText(m_buffer, text);
        m_buffer += '}';
        break;
    }
    m_first = false;
    if (m_buffer.size() > BufferSize)
        writeOut();
}

void ListOutput::finish()
{
    if (m_format == Format::Json)
        m_buffer += m_first ? "[]\n" : "\n]\n";
    writeOut();
    desktop::flushOutput();
}

void ListOutput::writeOut()
{
    desktop::writeOutput(m_buffer);
    m_buffer.resize(0);
}

} // namespace kalvenor::app
