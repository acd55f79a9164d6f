// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/basic/progress.h"
#include "platform/jet/reader/database.h"
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace kalvenor::jet {

struct Mark {
    std::uint32_t row = 0; ///< row of the table
    bool on = false;
};

/// A row whose mark stays as it is.
struct LeftRow {
    std::uint32_t row = 0;
    basic::Fault why; ///< RowWithoutKey, KeyRepeated or RecordTooOld
};

struct MarksWritten {
    std::vector<std::uint32_t> changed; ///< rows whose mark changed
    std::vector<LeftRow> left;          ///< rows that should have another mark and cannot take it
};

struct MarkTarget;

/// Whether the file, its folder or its medium is write-protected now, so that no mark can be written.
bool isWriteProtected(const QString &file);

/// Sets values of one Yes/No column, each by the change of one bit in one byte of the file. Nothing else of the file
/// is ever written, and nothing at all before every guard has passed for the page at hand.
///
/// A row that was written before the column was made has no bit for it and reads as No. Where its null mask has room
/// and the columns made in between need no bytes, the row can say Yes all the same: its count of columns is raised,
/// those in between are null or No, and no other byte of it changes.
class MarkWriter {
public:
    /// Checks what can be checked without a row: the column is Yes/No, not calculated, under no index, the key column
    /// is Long, and the file was not cut short. Throws ColumnNotFound or NotMarkable.
    MarkWriter(std::shared_ptr<Database> database, std::shared_ptr<const Table> table, int markColumn, int keyColumn);

    /// Throws ReadOnly (or FileNotFound) where write() would, and writes nothing.
    void requireWritable() const;

    /// The row has a mark of its own, or can be given one.
    bool canMark(std::uint32_t row) const;

    /// Writes the marks page by page in the file's order, one sync at the end. A row that is as wished already needs
    /// nothing; one that cannot take its mark (no key, a key not unique, older than the column) is left as it is, and
    /// the others are written. Each page is locked against other programs that lock, read again from the file and
    /// compared before its first byte is written, and each byte is read once more right before it is written. What is
    /// left is the time between that reading and the writing, in which a program that takes no locks could change
    /// another bit of the same byte and have it undone. Throws FileNotFound, ReadOnly, NotMarkable, ChangedElsewhere,
    /// WriteFailed (also where a page stays locked), Cancelled; the text says how many rows were changed before. The
    /// image takes over every bit written, and the file's new stamp. It has none, so that the database is stale, after
    /// an error behind the first write, and where a page that was written is not wholly as the image has it: another
    /// program has written to it. Progress counts rows.
    MarksWritten write(std::span<const Mark> marks, const basic::Progress &progress = {});

private:
    /// What is to be written, page by page in the file's order, each row once.
    std::vector<MarkTarget> plan(std::span<const Mark> marks, std::vector<LeftRow> &left);
    /// Why the row cannot take another mark; None where it can.
    basic::Fault obstacle(std::uint32_t row);
    basic::Place place() const;

    std::shared_ptr<Database> m_database;
    std::shared_ptr<const Table> m_table;
    int m_markColumn;
    int m_keyColumn;
    std::optional<std::vector<std::int32_t>> m_repeatedKeys; ///< ascending; found at the first write
};

} // namespace kalvenor::jet
