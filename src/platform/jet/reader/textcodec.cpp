// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/textcodec.h"

#include "platform/basic/codepage.h"
#include "platform/jet/reader/cursor.h"
#include <algorithm>

namespace kalvenor::jet {

namespace {

constexpr char16_t Replacement = u'\ufffd';

/// Replaces what is no character.
void mend(char16_t *text, qsizetype length)
{
    for (qsizetype i = 0; i < length; ++i) {
        const char16_t unit = text[i];
        if (QChar::isHighSurrogate(unit) && i + 1 < length && QChar::isLowSurrogate(text[i + 1]))
            ++i;
        else if (QChar::isSurrogate(unit) || unit >= 0xfffe)
            text[i] = Replacement;
    }
}

char16_t *room(QString &into, std::size_t length)
{
    into.resize(static_cast<qsizetype>(length));
    return reinterpret_cast<char16_t *>(into.data());
}

void decodeCompressed(std::span<const std::uint8_t> bytes, QString &into)
{
    char16_t *const out = room(into, bytes.size());
    std::size_t length = 0;
    char16_t highest = 0;
    bool wide = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == 0) {
            wide = !wide;
            continue;
        }
        if (!wide) {
            out[length++] = bytes[i];
            continue;
        }
        if (i + 1 == bytes.size())
            break;
        const char16_t unit = load16(&bytes[i]);
        highest = std::max(highest, unit);
        out[length++] = unit;
        ++i;
    }
    if (highest >= 0xd800)
        mend(out, static_cast<qsizetype>(length));
    into.resize(static_cast<qsizetype>(length));
}

void decodeWide(std::span<const std::uint8_t> bytes, QString &into)
{
    const std::size_t length = bytes.size() / 2;
    char16_t *const out = room(into, length);
    char16_t highest = 0;
    for (std::size_t i = 0; i < length; ++i) {
        out[i] = load16(&bytes[2 * i]);
        highest = std::max(highest, out[i]);
    }
    if (highest >= 0xd800)
        mend(out, static_cast<qsizetype>(length));
}

} // namespace

ByteCharacters charactersOf(int codePage)
{
    ByteCharacters result{};
    for (unsigned byte = 0; byte < 256; ++byte) {
        const char asChar = static_cast<char>(byte);
        const QString text = basic::decodeCodePage(QByteArrayView(&asChar, 1), codePage);
        result[byte] = text.isEmpty() ? Replacement : text.front().unicode();
    }
    return result;
}

void decodeText3(std::span<const std::uint8_t> bytes, const ByteCharacters &characters, QString &into)
{
    char16_t *out = room(into, bytes.size());
    for (const std::uint8_t byte : bytes)
        *out++ = characters[byte];
}

void decodeText4(std::span<const std::uint8_t> bytes, QString &into)
{
    if (isCompressed4(bytes))
        decodeCompressed(bytes.subspan(2), into);
    else
        decodeWide(bytes, into);
}

} // namespace kalvenor::jet
