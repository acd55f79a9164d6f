// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The values of a table's rows.
#include "platform/jet/reader/longvalue.h"
#include "platform/jet/reader/table.h"
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

using Bytes = std::span<const std::uint8_t>;

bool isLong(ColumnType type)
{
    return type == ColumnType::Memo || type == ColumnType::Ole;
}

/// Digits with `scale` decimals, without trailing zeros behind the point.
QString decimalText(QByteArray digits, int scale, bool negative)
{
    if (digits.size() <= scale)
        digits.prepend(QByteArray(scale + 1 - digits.size(), '0'));
    if (scale > 0) {
        digits.insert(digits.size() - scale, '.');
        while (digits.endsWith('0'))
            digits.chop(1);
        if (digits.endsWith('.'))
            digits.chop(1);
    }
    if (negative && digits != "0")
        digits.prepend('-');
    return QString::fromLatin1(digits);
}

QString moneyText(Bytes bytes)
{
    const auto value = static_cast<std::int64_t>(load64(bytes.data()));
    const std::uint64_t size = value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    return decimalText(QByteArray::number(qulonglong{size}), 4, value < 0);
}

/// Sign, then a 128-bit number whose most significant 32 bits come first.
QString numericText(Bytes bytes, int scale)
{
    std::array<std::uint32_t, 4> groups{load32(&bytes[1]), load32(&bytes[5]), load32(&bytes[9]), load32(&bytes[13])};
    QByteArray digits;
    while (std::ranges::any_of(groups, [](std::uint32_t group) { return group != 0; })) {
        std::uint64_t remainder = 0;
        for (std::uint32_t &group : groups) {
            const std::uint64_t part = remainder << 32 | group;
            group = static_cast<std::uint32_t>(part / 10);
            remainder = part % 10;
        }
        digits.prepend(static_cast<char>('0' + remainder));
    }
    if (digits.isEmpty())
        digits = "0";
    return decimalText(digits, scale, (bytes[0] & 0x80) != 0);
}

QUuid guid(Bytes bytes)
{
    return {load32(bytes.data()),
            load16(&bytes[4]),
            load16(&bytes[6]),
            bytes[8],
            bytes[9],
            bytes[10],
            bytes[11],
            bytes[12],
            bytes[13],
            bytes[14],
            bytes[15]};
}

} // namespace

Table::Field Table::field(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    const Field bytes = Record(m_layout, record(row)).field(column);
    const std::size_t ofType = sizeOf(column.type);
    if (bytes && ofType != 0 && bytes->size() != ofType) {
        warnAt(row, index, u"the value has %1 bytes instead of %2"_s.arg(bytes->size()).arg(ofType));
        return std::nullopt;
    }
    return column.type == ColumnType::Unreadable ? std::nullopt : bytes;
}

Table::Field Table::content(std::uint32_t row, int index, std::vector<std::uint8_t> &scratch) const
{
    const Field bytes = field(row, index);
    if (!bytes || !isLong(m_columns[static_cast<std::size_t>(index)].type))
        return bytes;
    QString problem;
    const Field whole = longValue(*m_image, *bytes, scratch, &problem);
    if (!problem.isEmpty())
        warnAt(row, index, problem);
    return whole;
}

bool Table::isNull(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type == ColumnType::Boolean)
        return false;
    if (!isLong(type))
        return !field(row, index);
    std::vector<std::uint8_t> scratch;
    return !content(row, index, scratch);
}

bool Table::boolean(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    return column.type == ColumnType::Boolean && Record(m_layout, record(row)).bit(column.number);
}

std::optional<std::int32_t> Table::integer(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Byte && type != ColumnType::Integer && type != ColumnType::Long)
        return std::nullopt;
    const Field bytes = field(row, index);
    if (!bytes)
        return std::nullopt;
    if (type == ColumnType::Byte)
        return (*bytes)[0];
    if (type == ColumnType::Integer)
        return static_cast<std::int16_t>(load16(bytes->data()));
    return static_cast<std::int32_t>(load32(bytes->data()));
}

std::optional<double> Table::number(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    switch (column.type) {
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
        return integer(row, index);
    case ColumnType::Money:
    case ColumnType::Float:
    case ColumnType::Double:
    case ColumnType::DateTime:
    case ColumnType::Numeric:
        break;
    default:
        return std::nullopt;
    }
    const Field bytes = field(row, index);
    if (!bytes)
        return std::nullopt;
    if (column.type == ColumnType::Money)
        return static_cast<double>(static_cast<std::int64_t>(load64(bytes->data()))) / 10000.0;
    if (column.type == ColumnType::Float)
        return double{std::bit_cast<float>(load32(bytes->data()))};
    if (column.type == ColumnType::Numeric)
        return numericText(*bytes, column.scale).toDouble();
    return std::bit_cast<double>(load64(bytes->data()));
}

QStringView Table::text(std::uint32_t row, int index, QString &buffer) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Text && type != ColumnType::Memo)
        return {};
    std::vector<std::uint8_t> scratch;
    const Field bytes = content(row, index, scratch);
    if (!bytes)
        return {};
    m_image->decodeText(*bytes, buffer);
    return buffer.isEmpty() ? QStringView(u"") : QStringView(buffer);
}

QString Table::text(std::uint32_t row, int index) const
{
    QString buffer;
    const QStringView read = text(row, index, buffer);
    if (read.isEmpty())
        return read.isNull() ? QString() : u""_s;
    return buffer;
}

QByteArray Table::bytes(std::uint32_t row, int index) const
{
    const ColumnType type = m_columns[static_cast<std::size_t>(index)].type;
    if (type != ColumnType::Binary && type != ColumnType::Ole)
        return {};
    std::vector<std::uint8_t> scratch;
    const Field bytes = content(row, index, scratch);
    if (!bytes)
        return {};
    return bytes->empty()
               ? QByteArray("")
               : QByteArray(reinterpret_cast<const char *>(bytes->data()), static_cast<qsizetype>(bytes->size()));
}

QVariant Table::value(std::uint32_t row, int index) const
{
    const Column &column = m_columns[static_cast<std::size_t>(index)];
    switch (column.type) {
    case ColumnType::Unreadable:
        return {};
    case ColumnType::Boolean:
        return boolean(row, index);
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long: {
        const std::optional<std::int32_t> number = integer(row, index);
        return number ? QVariant(*number) : QVariant();
    }
    case ColumnType::Float:
    case ColumnType::Double:
    case ColumnType::DateTime: {
        const std::optional<double> serial = number(row, index);
        return serial ? QVariant(*serial) : QVariant();
    }
    case ColumnType::Text:
    case ColumnType::Memo: {
        const QString read = text(row, index);
        return read.isNull() ? QVariant() : QVariant(read);
    }
    case ColumnType::Binary:
    case ColumnType::Ole: {
        const QByteArray read = bytes(row, index);
        return read.isNull() ? QVariant() : QVariant(read);
    }
    case ColumnType::Money:
    case ColumnType::Numeric:
    case ColumnType::Guid:
        break;
    }
    const Field bytes = field(row, index);
    if (!bytes)
        return {};
    if (column.type == ColumnType::Guid)
        return guid(*bytes);
    return column.type == ColumnType::Money ? moneyText(*bytes) : numericText(*bytes, column.scale);
}

} // namespace kalvenor::jet
