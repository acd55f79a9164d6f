// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <span>

namespace kalvenor::dao {

class Database;

/// A cursor over the rows of a table or of a query's result.
class Recordset {
public:
    struct Private;
    explicit Recordset(std::unique_ptr<Private> priv);
    ~Recordset();
    Recordset(const Recordset &) = delete;
    Recordset &operator=(const Recordset &) = delete;

    bool isOpen() const;
    void close();

    // Moving. Rows count from 0.
    qint64 recordCount() const;
    bool eof() const;
    void moveFirst();
    void moveNext();
    void moveTo(qint64 position);
    qint64 position() const;

    // Table type only. The rows are in the file's order, whatever the index. A reload of the file takes
    // their current row away: there is none until the next move or seek, which finds the new state.
    /// Throws IndexNotFound; the name counts without case.
    void setIndex(const QString &name);
    /// Seek with the comparison "=" on a one-column unique or plain index over a Long column. noMatch() says whether
    /// nothing was found; the current row is then none.
    void seekEqual(qint32 key);
    bool noMatch() const;
    /// Edit, set, Update of one field: only `Markierung` can be set. Update is Database::setMarks for the row's
    /// `Counter`. Throws NoCurrentRow, Refused, ChangedElsewhere where the row is gone, and as setMarks.
    void edit();
    void setValue(const QString &field, bool value);
    /// True where the mark really changed.
    bool update();

    /// The rows of its table that a query gave, in its order; empty for a table recordset and where SQLite had to sort
    /// or compute. For list models: valid until the recordset is closed.
    std::span<const quint32> rows() const;
    /// How many rows that table has; 0 where the values were computed.
    qint64 tableRowCount() const;
    /// Both count in the same rows: those of one table in one state of the file.
    bool countsIn(const Recordset &other) const;

    // Fields. The name counts without case. Throws ColumnNotFound.
    int fieldIndex(const QString &name) const;
    // Values of the current row; null gives nothing. Throws NoCurrentRow.
    QVariant value(int field) const;
    QVariant value(const QString &name) const { return value(fieldIndex(name)); }
    std::optional<double> number(int field) const;
    std::optional<qint32> integer(int field) const;
    bool boolean(int field) const;
    /// Null gives the empty text.
    QString text(int field) const;
    /// The same for many rows, without an allocation each; valid until the buffer's next use.
    QStringView text(int field, QString &buffer) const;

private:
    friend class Database;
    std::unique_ptr<Private> d;
};

} // namespace kalvenor::dao
