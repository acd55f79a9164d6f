// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <QByteArray>
#include <QString>

namespace kalvenor::basic {

/// What went wrong, coarse enough to choose an answer by.
enum class ErrorKind {
    InvalidProcedureCall, ///< a length or argument that cannot be (5)
    Overflow,             ///< a number does not fit its type (6)
    Subscript,            ///< an index outside its array (9)
    TypeMismatch,         ///< a text that is no number or no date (13)
    FileNotFound,         ///< the file or folder is not there (3024)
    FileUnreadable,       ///< there, but cannot be read
    NotADatabase,         ///< not a Jet 3 or Jet 4 file (3343)
    Damaged,              ///< a structure inside the file is damaged (3343)
    TableNotFound,        ///< 3078
    ColumnNotFound,       ///< 3265
    IndexNotFound,        ///< 3015
    ObjectClosed,         ///< used after it was closed (3420)
    NoCurrentRow,         ///< 3021
    InvalidSql,           ///< the statement cannot be understood (3075)
    InvalidPattern,       ///< a LIKE pattern that is not one (93)
    Refused,              ///< a statement or change that is never carried out
    ReadOnly,             ///< the file cannot be written (3027)
    NotMarkable,          ///< this column or row cannot take a mark
    ChangedElsewhere,     ///< another program changed the data meanwhile (3197)
    WriteFailed,          ///< writing was begun and failed
    Cancelled,            ///< the person stopped it
};

/// The one error type of the program. `place` names the file (and table, page …), `text` says what is wrong
/// and, where there is something to do, what. The top catches it once per user action.
class Error : public std::exception {
public:
    Error(ErrorKind kind, QString place, QString text);

    ErrorKind kind() const { return m_kind; }
    const QString &place() const { return m_place; }
    const QString &text() const { return m_text; }
    /// "place: text", or the text alone where no place is known.
    QString message() const;
    /// The number under which users of the classic runtime know this kind.
    int number() const;
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    ErrorKind m_kind;
    QString m_place;
    QString m_text;
    QByteArray m_utf8;
};

} // namespace kalvenor::basic
