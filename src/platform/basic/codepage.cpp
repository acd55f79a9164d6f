// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/codepage.h"

#include <algorithm>
#include <array>
#include <QStringConverter>
#include <utility>

#include "platform/basic/codepage_tables.h"

namespace kalvenor::basic {

namespace {

constexpr int FirstCodePage = 1250;

using Pair = std::pair<char16_t, char>;
using ReverseTable = std::array<Pair, 128>; // sorted by code point

std::size_t tableIndex(int codePage)
{
    return static_cast<std::size_t>((isKnownCodePage(codePage) ? codePage : 1252) - FirstCodePage);
}

const ReverseTable &reverseTable(int codePage)
{
    static const auto tables = [] {
        std::array<ReverseTable, CodePageUpperHalves.size()> all;
        for (std::size_t page = 0; page < all.size(); ++page) {
            for (std::size_t i = 0; i < 128; ++i)
                all[page][i] = {CodePageUpperHalves[page][i], static_cast<char>(i + 128)};
            std::sort(all[page].begin(), all[page].end());
        }
        return all;
    }();
    return tables[tableIndex(codePage)];
}

} // namespace

bool isKnownCodePage(int codePage)
{
    return codePage >= FirstCodePage && codePage < FirstCodePage + static_cast<int>(CodePageUpperHalves.size());
}

QString decodeCodePage(QByteArrayView bytes, int codePage)
{
    const UpperHalf &upper = CodePageUpperHalves[tableIndex(codePage)];
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [&upper](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value < 128 ? QChar(value) : QChar(upper[value - 128U]);
    });
    return text;
}

QByteArray encodeCodePage(QStringView text, int codePage)
{
    const ReverseTable &table = reverseTable(codePage);
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(), [&table](QChar character) {
        const char16_t unit = character.unicode();
        if (unit < 128)
            return static_cast<char>(unit);
        const auto found = std::lower_bound(table.begin(), table.end(), Pair(unit, '\x80'),
                                            [](const Pair &a, const Pair &b) { return a.first < b.first; });
        return found != table.end() && found->first == unit ? found->second : '?';
    });
    return bytes;
}

QString storedPath(const QString &path)
{
    return pathFromStored(decodeAnsi(encodeAnsi(path))) == path ? path : decodeAnsi(path.toUtf8());
}

QString pathFromStored(const QString &stored)
{
    const QByteArray bytes = encodeAnsi(stored);
    if (decodeAnsi(bytes) != stored)
        return stored; // not from such a file
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString path = utf8(bytes);
    return utf8.hasError() ? stored : path;
}

} // namespace kalvenor::basic
