// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/format.h"
#include <memory>
#include <QByteArray>
#include <QString>
#include <span>
#include <string>
#include <variant>
#include <vector>

// Makes new Jet 4 databases. Write-once: collect tables and rows, then write all pages. Deterministic: the same input
// gives the same bytes.
namespace kalvenor::jet {

struct NewColumn {
    QString name;
    ColumnType type = ColumnType::Long;
    int length = 0; ///< Text: characters (1–255, 0 = 255); Binary: bytes (1–510, 0 = 510); else ignored
    bool compressed = true;
    bool autonumber = false; ///< Long only
    std::uint8_t scale = 0;  ///< Numeric only
};

struct NewIndex {
    QString name;
    std::vector<QString> columns;
    bool unique = true;
    bool primary = false;
};

/// Null (Yes/No: no), Yes/No, a number (a DateTime is its serial), text, bytes. Money and Numeric also take a decimal
/// text such as "-12.5"; a Guid is its 16 bytes in the order of RFC 4122, as QUuid::toRfc4122 gives them.
using NewValue = std::variant<std::monostate, bool, std::int32_t, double, QString, QByteArray>;

class Creator {
public:
    class Table;

    Creator();
    ~Creator();
    Creator(const Creator &) = delete;
    Creator &operator=(const Creator &) = delete;

    /// Throws Error(InvalidProcedureCall) for names, types or lengths the format does not allow. The reference stays
    /// valid as long as the creator.
    Table &addTable(const QString &name, const std::vector<NewColumn> &columns,
                    const std::vector<NewIndex> &indexes = {});

    /// Writes the file (native path) beside its place and renames it there; an existing file is replaced. Nothing can
    /// be added afterwards, but the same database can be written again.
    /// `encodingKey` other than 0 makes the pages encoded. Throws WriteFailed, or InvalidProcedureCall for a duplicate
    /// key of a unique index or a file that would grow beyond 2 GiB.
    void write(const QString &file, std::uint32_t encodingKey = 0);

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

class Creator::Table {
public:
    /// Values in column order, one for each column. Throws Error(InvalidProcedureCall) for a value that does not fit
    /// its column or a record that is too long.
    void addRow(std::span<const NewValue> values);
    void addRow(std::initializer_list<NewValue> values) { addRow(std::span(values.begin(), values.size())); }
    std::uint32_t rowCount() const;

    struct Impl;
    explicit Table(std::unique_ptr<Impl> impl);
    ~Table();
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;

private:
    friend class Creator;
    std::unique_ptr<Impl> m_impl;
};

} // namespace kalvenor::jet
