// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/creator/creator_record.h"

#include "platform/basic/error.h"
#include "platform/jet/creator/creator_decimal.h"
#include "platform/jet/reader/datapage.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace kalvenor::jet::creating {

namespace {

constexpr std::size_t LongestInline = 64;
constexpr std::size_t LongestLink = 4076;
constexpr qsizetype LongestCompressedMemo = 1024; ///< characters
constexpr std::uint32_t InlineValue = 0x80000000;
constexpr std::uint32_t SingleRowValue = 0x40000000;
constexpr qsizetype LongestShown = 60; ///< of a value that is refused, characters
constexpr std::size_t LongestLongValue = 0x3FFFFFFF;

[[noreturn]] void refuse(const TableSpec &spec, const Column &column, const NewValue &value)
{
    QString shown;
    if (const auto *text = std::get_if<QString>(&value))
        shown = *text;
    else if (const auto *real = std::get_if<double>(&value))
        shown = QString::number(*real);
    else if (const auto *whole = std::get_if<std::int32_t>(&value))
        shown = QString::number(*whole);
    else if (const auto *bytes = std::get_if<QByteArray>(&value))
        shown = QString::fromLatin1(bytes->left(LongestShown).toHex());
    if (shown.size() > LongestShown)
        shown = shown.left(LongestShown) + u'…';
    throw basic::Error(basic::Fault::ValueUnsuited, {.table = spec.name}, {column.name, shown});
}

bool isNull(const NewValue &value)
{
    return std::holds_alternative<std::monostate>(value);
}

double number(const TableSpec &spec, const Column &column, const NewValue &value)
{
    if (const auto *whole = std::get_if<std::int32_t>(&value))
        return *whole;
    if (const auto *real = std::get_if<double>(&value))
        return *real;
    refuse(spec, column, value);
}

template <typename Whole>
Whole wholeNumber(const TableSpec &spec, const Column &column, const NewValue &value)
{
    const double real = number(spec, column, value);
    if (!(real >= std::numeric_limits<Whole>::min() && real <= std::numeric_limits<Whole>::max()) ||
        real != std::trunc(real)) {
        refuse(spec, column, value);
    }
    return static_cast<Whole>(real);
}

Decimal decimal(const TableSpec &spec, const Column &column, const NewValue &value, int scale)
{
    QString text;
    if (const auto *given = std::get_if<QString>(&value))
        text = *given;
    else
        text = QString::number(number(spec, column, value), 'f', scale);
    const std::optional<Decimal> parsed = parseDecimal(text, scale);
    if (!parsed) {
        refuse(spec, column, value);
    }
    return *parsed;
}

template <typename Wanted>
const Wanted &valueOf(const TableSpec &spec, const Column &column, const NewValue &value)
{
    const auto *wanted = std::get_if<Wanted>(&value);
    if (wanted == nullptr)
        refuse(spec, column, value);
    return *wanted;
}

/// Appends a text as Jet 4 stores it: compressed where that is allowed and shorter, else UTF-16LE.
void appendText(QStringView text, bool mayCompress, std::vector<std::uint8_t> &to)
{
    const bool compress = mayCompress && text.size() > 2 && std::all_of(text.begin(), text.end(), [](QChar character) {
                              return character.unicode() >= 1 && character.unicode() <= 0xFF;
                          });
    if (compress) {
        to.push_back(0xFF);
        to.push_back(0xFE);
        for (const QChar character : text)
            to.push_back(static_cast<std::uint8_t>(character.unicode()));
        return;
    }
    if (text.isEmpty())
        return;
    const std::size_t start = to.size();
    to.resize(start + 2 * static_cast<std::size_t>(text.size()));
    qToLittleEndian<quint16>(text.utf16(), text.size(), to.data() + start);
}

} // namespace

RecordEncoder::RecordEncoder(PageStore &store, const TableSpec &spec) : m_store(&store), m_spec(&spec)
{
    for (const Column &column : spec.columns) {
        if (isLongValue(column.type))
            m_longValues.push_back({column.number, RowPages(store, LongValueOwner)});
    }
    m_offsets.resize(spec.variableColumns);
}

std::uint8_t *RecordEncoder::reserve(std::uint32_t bytes)
{
    if (bytes > MaximumRecordLength - m_length) {
        throw basic::Error(basic::Fault::RowTooLong, {.table = m_spec->name}, {m_length + bytes, MaximumRecordLength});
    }
    std::uint8_t *const place = m_record.data() + m_length;
    m_length += bytes;
    return place;
}

std::span<const std::uint8_t> RecordEncoder::encode(std::span<const NewValue> values)
{
    const std::vector<Column> &columns = m_spec->columns;
    if (values.size() != columns.size()) {
        throw basic::Error(basic::Fault::Misuse, {.table = m_spec->name},
                           {u"%1 values for %2 columns"_s.arg(values.size()).arg(columns.size())});
    }
    m_length = 0;
    put(reserve(2), static_cast<std::uint16_t>(columns.size()));
    std::uint8_t *const fixed = reserve(m_spec->fixedBytes);
    std::fill_n(fixed, m_spec->fixedBytes, std::uint8_t{0});
    std::array<std::uint8_t, 32> mask{};
    const auto setMask = [&mask](std::uint16_t number) {
        mask[number / 8] = static_cast<std::uint8_t>(mask[number / 8] | 1u << number % 8);
    };

    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column &column = columns[i];
        if (!column.isFixed() || isNull(values[i]))
            continue;
        if (column.type == ColumnType::Boolean) {
            if (valueOf<bool>(*m_spec, column, values[i]))
                setMask(column.number);
            continue;
        }
        encodeFixed(column, values[i], fixed + column.fixedOffset);
        setMask(column.number);
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column &column = columns[i];
        if (column.isFixed())
            continue;
        m_offsets[column.variableIndex] = static_cast<std::uint16_t>(m_length);
        if (isNull(values[i]))
            continue;
        encodeVariable(column, values[i]);
        std::copy(m_value.begin(), m_value.end(), reserve(static_cast<std::uint32_t>(m_value.size())));
        setMask(column.number);
    }
    if (m_spec->variableColumns > 0) {
        const auto end = static_cast<std::uint16_t>(m_length);
        put(reserve(2), end);
        for (std::size_t i = m_offsets.size(); i > 0; --i)
            put(reserve(2), m_offsets[i - 1]);
        put(reserve(2), m_spec->variableColumns);
    }
    const auto maskLength = static_cast<std::uint32_t>((columns.size() + 7) / 8);
    std::copy_n(mask.begin(), maskLength, reserve(maskLength));
    return {m_record.data(), m_length};
}

void RecordEncoder::encodeFixed(const Column &column, const NewValue &value, std::uint8_t *to) const
{
    switch (column.type) {
    case ColumnType::Byte:
        *to = wholeNumber<std::uint8_t>(*m_spec, column, value);
        break;
    case ColumnType::Integer:
        put(to, wholeNumber<std::int16_t>(*m_spec, column, value));
        break;
    case ColumnType::Long:
        put(to, wholeNumber<std::int32_t>(*m_spec, column, value));
        break;
    case ColumnType::Float: {
        const double real = number(*m_spec, column, value);
        if (std::isfinite(real) && std::fabs(real) > std::numeric_limits<float>::max())
            refuse(*m_spec, column, value);
        put(to, static_cast<float>(real));
        break;
    }
    case ColumnType::Double:
    case ColumnType::DateTime:
        put(to, number(*m_spec, column, value));
        break;
    case ColumnType::Money: {
        const std::optional<std::int64_t> money = toInt64(decimal(*m_spec, column, value, 4));
        if (!money)
            refuse(*m_spec, column, value);
        put(to, *money);
        break;
    }
    case ColumnType::Guid: {
        const auto &bytes = valueOf<QByteArray>(*m_spec, column, value);
        if (bytes.size() != 16)
            refuse(*m_spec, column, value);
        std::memcpy(to, bytes.constData(), 16);
        std::reverse(to, to + 4);
        std::reverse(to + 4, to + 6);
        std::reverse(to + 6, to + 8);
        break;
    }
    case ColumnType::Numeric: {
        const Decimal number = decimal(*m_spec, column, value, column.scale);
        to[0] = number.negative ? 0x80 : 0;
        for (std::size_t group = 0; group < number.groups.size(); ++group)
            put(to + 1 + 4 * group, number.groups[group]);
        break;
    }
    default:
        refuse(*m_spec, column, value);
    }
}

void RecordEncoder::encodeVariable(const Column &column, const NewValue &value)
{
    m_value.clear();
    const bool mayCompress = (column.extraFlags & Compressible) != 0;
    switch (column.type) {
    case ColumnType::Text:
    case ColumnType::Memo: {
        const auto &text = valueOf<QString>(*m_spec, column, value);
        const bool isMemo = column.type == ColumnType::Memo;
        if (!isMemo && 2 * text.size() > column.length) {
            refuse(*m_spec, column, value);
        }
        if (text.startsWith(QChar(0xFEFF))) // no reader could tell it from a compressed text
            refuse(*m_spec, column, value);
        appendText(text, mayCompress && (!isMemo || text.size() <= LongestCompressedMemo), m_value);
        break;
    }
    case ColumnType::Binary:
    case ColumnType::Ole: {
        const auto &bytes = valueOf<QByteArray>(*m_spec, column, value);
        if (column.type == ColumnType::Binary && bytes.size() > column.length) {
            refuse(*m_spec, column, value);
        }
        m_value.assign(bytes.begin(), bytes.end());
        break;
    }
    default:
        refuse(*m_spec, column, value);
    }
    if (isLongValue(column.type))
        moveToLongValue(column);
}

void RecordEncoder::moveToLongValue(const Column &column)
{
    const std::size_t length = m_value.size();
    if (length > LongestLongValue)
        refuse(*m_spec, column, {});
    const auto stated = static_cast<std::uint32_t>(length);
    std::array<std::uint8_t, 12> head{};
    if (length <= LongestInline) {
        put(head.data(), stated | InlineValue);
        m_value.insert(m_value.begin(), head.begin(), head.end());
        return;
    }
    const auto found =
        std::find_if(m_longValues.begin(), m_longValues.end(),
                     [&column](const LongValueColumn &candidate) { return candidate.number == column.number; });
    RowPages &pages = found->pages;
    if (length <= LongestLink) {
        const RowPages::Place place = pages.addRow(stated);
        std::copy(m_value.begin(), m_value.end(), place.bytes);
        put(head.data(), stated | SingleRowValue);
        put(head.data() + 4, place.address);
    } else {
        // From the last link backwards, so that each knows where the next one lies.
        RowAddress next = 0;
        std::size_t linkStart = (length - 1) / LongestLink * LongestLink;
        for (std::size_t linkEnd = length;; linkEnd = linkStart, linkStart -= LongestLink) {
            const RowPages::Place place = pages.addRow(static_cast<std::uint32_t>(4 + linkEnd - linkStart));
            put(place.bytes, next);
            std::copy(m_value.begin() + static_cast<std::ptrdiff_t>(linkStart),
                      m_value.begin() + static_cast<std::ptrdiff_t>(linkEnd), place.bytes + 4);
            next = place.address;
            if (linkStart == 0)
                break;
        }
        put(head.data(), stated);
        put(head.data() + 4, next);
    }
    m_value.assign(head.begin(), head.end());
}

} // namespace kalvenor::jet::creating
