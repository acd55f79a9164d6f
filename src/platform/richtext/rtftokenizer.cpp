// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtftokenizer.h"

#include <algorithm>
#include <limits>

namespace kalvenor::richtext {

namespace {

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Line ends and NULs between tokens mean nothing.
bool isNothing(char c)
{
    return c == '\r' || c == '\n' || c == '\0';
}

bool isPlain(char c)
{
    return c != '\\' && c != '{' && c != '}' && !isNothing(c);
}

int hexDigit(char c)
{
    if (isDigit(c))
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

RtfToken RtfTokenizer::next()
{
    while (!atEnd() && isNothing(m_rtf[m_at]))
        ++m_at;
    if (atEnd())
        return {};
    switch (m_rtf[m_at]) {
    case '{':
        ++m_at;
        return {.kind = RtfToken::Kind::GroupStart};
    case '}':
        ++m_at;
        return {.kind = RtfToken::Kind::GroupEnd};
    case '\\':
        ++m_at;
        return control();
    default:
        return text();
    }
}

RtfToken RtfTokenizer::text()
{
    const qsizetype from = m_at;
    while (!atEnd() && isPlain(m_rtf[m_at]))
        ++m_at;
    return {.kind = RtfToken::Kind::Text, .bytes = m_rtf.sliced(from, m_at - from)};
}

RtfToken RtfTokenizer::control()
{
    if (atEnd())
        return {};
    const char first = m_rtf[m_at];
    if (isLetter(first))
        return word();
    ++m_at;
    if (first == '\'')
        return hex();
    if (first == '\r' || first == '\n')
        return {.kind = RtfToken::Kind::Word, .bytes = "par"};
    return {.kind = RtfToken::Kind::Symbol, .bytes = m_rtf.sliced(m_at - 1, 1)};
}

RtfToken RtfTokenizer::hex()
{
    RtfToken token{.kind = RtfToken::Kind::Hex};
    if (m_rtf.size() - m_at < 2)
        return token;
    const int high = hexDigit(m_rtf[m_at]);
    const int low = hexDigit(m_rtf[m_at + 1]);
    if (high < 0 || low < 0)
        return token;
    m_at += 2;
    token.value = high * 16 + low;
    token.hasValue = true;
    return token;
}

RtfToken RtfTokenizer::word()
{
    RtfToken token{.kind = RtfToken::Kind::Word};
    const qsizetype from = m_at;
    while (!atEnd() && isLetter(m_rtf[m_at]))
        ++m_at;
    token.bytes = m_rtf.sliced(from, m_at - from);

    const bool negative = m_rtf.size() - m_at >= 2 && m_rtf[m_at] == '-' && isDigit(m_rtf[m_at + 1]);
    if (negative)
        ++m_at;
    constexpr qint64 Largest = std::numeric_limits<int>::max();
    qint64 number = 0;
    while (!atEnd() && isDigit(m_rtf[m_at])) {
        number = std::min(number * 10 + (m_rtf[m_at++] - '0'), Largest);
        token.hasValue = true;
    }
    token.value = static_cast<int>(negative ? -number : number);
    if (!atEnd() && m_rtf[m_at] == ' ')
        ++m_at; // the delimiter belongs to the word
    if (token.bytes == QByteArrayView("bin"))
        passOver(token.value);
    return token;
}

void RtfTokenizer::passOver(int bytes)
{
    m_at += std::clamp<qsizetype>(bytes, 0, m_rtf.size() - m_at);
}

} // namespace kalvenor::richtext
