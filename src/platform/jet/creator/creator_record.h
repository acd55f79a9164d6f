// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator_pages.h"
#include "platform/jet/creator/creator_spec.h"
#include <array>
#include <cstdint>
#include <QString>
#include <span>
#include <vector>

namespace kalvenor::jet::creating {

inline constexpr std::uint32_t MaximumRecordLength = 4060;

/// Makes the records of one table. Long values go to pages of their own column at once.
class RecordEncoder {
public:
    /// The table's description must live as long as the encoder.
    RecordEncoder(PageStore &store, const TableSpec &spec);

    /// One record, valid until the next call. Throws Error(InvalidProcedureCall) naming table and column.
    std::span<const std::uint8_t> encode(std::span<const NewValue> values);
    /// The fixed columns' bytes of the record made last.
    const std::uint8_t *fixedData() const { return m_record.data() + 2; }

    struct LongValueColumn {
        std::uint16_t number;
        RowPages pages;
    };
    const std::vector<LongValueColumn> &longValueColumns() const { return m_longValues; }

private:
    void encodeFixed(const Column &column, const NewValue &value, std::uint8_t *to) const;
    /// The bytes of a variable column's value, in m_value.
    void encodeVariable(const Column &column, const NewValue &value);
    void moveToLongValue(const Column &column);
    std::uint8_t *reserve(std::uint32_t bytes);

    PageStore *m_store;
    const TableSpec *m_spec;
    std::vector<LongValueColumn> m_longValues;
    std::array<std::uint8_t, MaximumRecordLength> m_record{};
    std::uint32_t m_length = 0;
    std::vector<std::uint16_t> m_offsets;
    std::vector<std::uint8_t> m_value;
};

} // namespace kalvenor::jet::creating
