// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"

#include <QStringList>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

QString namesOf(const std::vector<Argument> &arguments)
{
    QStringList names;
    for (const Argument &argument : arguments)
        names << (argument.word == Fault::None ? argument.text : QString::fromLatin1(nameOf(argument.word)));
    return names.join(u", "_s);
}

QString placeNames(const Place &place)
{
    QStringList names{place.file};
    if (!place.table.isEmpty())
        names << u"table "_s + place.table;
    if (place.page >= 0)
        names << u"page %1"_s.arg(place.page);
    if (place.line >= 0)
        names << u"line %1"_s.arg(place.line);
    names << place.item;
    names.removeAll(QString());
    return names.join(u", "_s);
}

} // namespace

Error::Error(Fault fault, Place place, std::vector<Argument> arguments, SourceLine source)
    : m_kind(kindOf(fault)), m_place(std::move(place)), m_parts{{fault, std::move(arguments)}}, m_source(source)
{
    describe();
}

void Error::describe()
{
    QStringList parts;
    for (const Part &part : m_parts) {
        if (part.arguments.empty())
            parts << QString::fromLatin1(nameOf(part.fault));
        else
            parts << u"%1 (%2)"_s.arg(QLatin1StringView(nameOf(part.fault)), namesOf(part.arguments));
    }
    const QString place = placeNames(m_place);
    m_what = ((place.isEmpty() ? QString() : place + u": "_s) + parts.join(u"; "_s)).toUtf8();
}

QString Error::technical() const
{
    const QString file = QString::fromLatin1(m_source.file);
    return u"%1 [run-time error %2, %3:%4]"_s.arg(message(), QString::number(number()),
                                                  file.mid(file.lastIndexOf(u"src/"_s) + 4),
                                                  QString::number(m_source.line));
}

QStringList Error::arguments() const
{
    QStringList texts;
    for (const Argument &argument : m_parts.front().arguments)
        texts << (argument.word == Fault::None ? argument.text : QString::fromLatin1(nameOf(argument.word)));
    return texts;
}

Error Error::with(Fault remark, std::vector<Argument> arguments) const
{
    Error error = *this;
    error.m_parts.push_back({remark, std::move(arguments)});
    error.describe();
    return error;
}

Error Error::with(const Error &other) const
{
    Error error = *this;
    error.m_parts.insert(error.m_parts.end(), other.m_parts.begin(), other.m_parts.end());
    error.describe();
    return error;
}

Error Error::at(Place place) const
{
    Error error = *this;
    error.m_place = std::move(place);
    error.describe();
    return error;
}

int Error::number() const
{
    switch (m_kind) {
    case ErrorKind::InvalidProcedureCall:
    case ErrorKind::WrongUsage:
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
