// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/damage.h"
#include "platform/jet/reader/format.h"
#include "platform/jet/reader/image.h"
#include "platform/jet/reader/record.h"
#include <map>
#include <memory>
#include <optional>
#include <QString>
#include <QVariant>
#include <vector>

namespace kalvenor::jet {

/// Where a record lies. The first place is the row's identity, the record is where an overflow pointer leads.
struct RowPlace {
    std::uint32_t firstPage = 0;
    std::uint32_t recordPage = 0;
    std::uint16_t recordStart = 0; ///< in the record's page
    std::uint16_t recordLength = 0;
    std::uint8_t firstSlot = 0;
    std::uint8_t recordSlot = 0;
};

/// A read-only column view over the image; no row is copied. Rows count from 0 in page order, columns from 0 in the
/// order of their numbers. Values that the damage of a file makes unreadable are null and noted in damage(). A record
/// is that of one row only, and where the long values of a column add up to more than the file, because rows share
/// them, reading them throws Error(Damaged): what a table costs is bounded by the size of its file. For one thread.
class Table {
public:
    /// Reads the definition at `definitionPage` and locates all rows. Throws Error(Damaged).
    static std::shared_ptr<const Table> read(std::shared_ptr<const Image> image, const QString &name,
                                             std::uint32_t definitionPage);

    const QString &name() const { return m_name; }
    const Image &image() const { return *m_image; }
    std::uint32_t definitionPage() const { return m_definitionPage; }
    const std::vector<Column> &columns() const { return m_columns; }
    const std::vector<Index> &indexes() const { return m_indexes; }
    /// Numbers of the columns that any physical index holds, also where no logical index names it.
    bool isIndexed(std::uint16_t columnNumber) const;
    /// Without regard to case; -1 where there is none.
    int columnOf(QStringView name) const;

    std::uint32_t rowCount() const { return static_cast<std::uint32_t>(m_rows.size()); }
    const RowPlace &place(std::uint32_t row) const
    {
        Q_ASSERT(row < m_rows.size());
        return m_rows[row];
    }
    std::span<const std::uint8_t> record(std::uint32_t row) const
    {
        const RowPlace &place = this->place(row);
        return m_image->page(place.recordPage).subspan(place.recordStart, place.recordLength);
    }
    /// Lets the processor fetch a record that is needed a little later, from a place that it cannot foresee. For that
    /// it needs the row's entry in the table of places, which fetchPlace() has it fetch still earlier.
    Q_ALWAYS_INLINE void fetch(std::uint32_t row) const // inline, else GCC takes the call for one without effect
    {
#ifdef __GNUC__
        constexpr std::size_t cacheLine = 64;
        const RowPlace &place = m_rows[row];
        const std::uint8_t *bytes = m_image->page(place.recordPage).data() + place.recordStart;
        for (std::size_t at = 0; at < place.recordLength; at += cacheLine)
            __builtin_prefetch(bytes + at);
#else
        Q_UNUSED(row)
#endif
    }
    Q_ALWAYS_INLINE void fetchPlace(std::uint32_t row) const
    {
#ifdef __GNUC__
        __builtin_prefetch(&m_rows[row]);
#else
        Q_UNUSED(row)
#endif
    }
    /// The record some rows ahead. Pays where all rows are read one behind the other: within a page they
    /// lie backwards.
    Q_ALWAYS_INLINE void fetchAhead(std::uint32_t row) const
    {
        constexpr std::size_t rowsAhead = 16;
        if (row + rowsAhead < m_rows.size())
            fetch(row + rowsAhead);
    }
    const RecordLayout &layout() const
    {
        return m_layout;
    }

    // Values. A column of another type than asked for gives nothing.
    bool isNull(std::uint32_t row, int column) const;
    bool boolean(std::uint32_t row, int column) const;
    /// Byte, Integer, Long.
    std::optional<std::int32_t> integer(std::uint32_t row, int column) const;
    /// All number types and DateTime (its serial).
    std::optional<double> number(std::uint32_t row, int column) const;
    /// Text and Memo. The view is valid until the buffer's next use; a null value has isNull().
    QStringView text(std::uint32_t row, int column, QString &buffer) const;
    QString text(std::uint32_t row, int column) const;
    /// Binary, Ole.
    QByteArray bytes(std::uint32_t row, int column) const;
    /// Any type: bool, int, double, QString, QByteArray, QUuid; Money and Numeric as exact decimal text; invalid =
    /// null.
    QVariant value(std::uint32_t row, int column) const;

    /// What damage was passed over while rows were located and values read.
    const std::vector<Damage> &damage() const
    {
        return m_damage.kinds();
    }
    /// How many pages the file must have for what this table lost with its end; 0 where nothing is lost. A table may
    /// own pages behind the end that it has not used yet.
    std::uint32_t pagesNeeded() const
    {
        return m_pagesNeeded;
    }

private:
    friend class TableReader;
    using Field = std::optional<std::span<const std::uint8_t>>;

    /// The value's bytes, nothing for null and for what cannot be read; not for Yes/No.
    Field field(std::uint32_t row, int column) const;
    /// Text, Memo, Binary and Ole: their own bytes.
    Field content(std::uint32_t row, int column, std::vector<std::uint8_t> &scratch) const;
    void note(qint64 page, basic::Fault fault, std::vector<basic::Argument> arguments) const;
    void countLongValue(std::uint32_t row, int column, std::size_t bytes) const;

    std::shared_ptr<const Image> m_image;
    QString m_name;
    std::uint32_t m_definitionPage = 0;
    std::vector<Column> m_columns;
    std::vector<Index> m_indexes;
    std::vector<std::uint16_t> m_indexedColumns;
    RecordLayout m_layout;
    std::vector<RowPlace> m_rows;
    std::uint32_t m_pagesNeeded = 0;
    /// The long values read so far of a column, each row's once, and their bytes.
    struct LongValues {
        std::vector<bool> rows;
        std::size_t bytes = 0;
    };
    mutable std::map<int, LongValues> m_longValues;
    mutable DamageLog m_damage;
};

} // namespace kalvenor::jet
