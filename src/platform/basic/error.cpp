// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

Error::Error(ErrorKind kind, QString place, QString text)
    : m_kind(kind), m_place(std::move(place)), m_text(std::move(text)), m_utf8(message().toUtf8())
{
}

QString Error::message() const
{
    return m_place.isEmpty() ? m_text : m_place + u": "_s + m_text;
}

int Error::number() const
{
    switch (m_kind) {
    case ErrorKind::InvalidProcedureCall:
        return 5;
    case ErrorKind::Overflow:
        return 6;
    case ErrorKind::Subscript:
        return 9;
    case ErrorKind::TypeMismatch:
        return 13;
    case ErrorKind::FileNotFound:
        return 3024;
    case ErrorKind::FileUnreadable:
        return 3051;
    case ErrorKind::NotADatabase:
    case ErrorKind::Damaged:
        return 3343;
    case ErrorKind::TableNotFound:
        return 3078;
    case ErrorKind::ColumnNotFound:
        return 3265;
    case ErrorKind::IndexNotFound:
        return 3015;
    case ErrorKind::ObjectClosed:
        return 3420;
    case ErrorKind::NoCurrentRow:
        return 3021;
    case ErrorKind::InvalidSql:
        return 3075;
    case ErrorKind::InvalidPattern:
        return 93;
    case ErrorKind::Refused:
        return 3066;
    case ErrorKind::ReadOnly:
    case ErrorKind::NotMarkable:
        return 3027;
    case ErrorKind::ChangedElsewhere:
        return 3197;
    case ErrorKind::WriteFailed:
        return 57;
    case ErrorKind::Cancelled:
        return 18;
    }
    return 51;
}

} // namespace kalvenor::basic
