// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/sqlerror.h"

#include <QRegularExpression>

namespace kalvenor::dao {

using basic::Fault;

using namespace Qt::StringLiterals;

namespace {

struct Complaint {
    const char *pattern; ///< its group, where there is one, is the fault's argument
    Fault fault;
};
constexpr Complaint Complaints[] = {
    {"^no such column: (.*)$", Fault::SqlColumn},
    {"^ambiguous column name: (.*)$", Fault::SqlAmbiguous},
    {"^near \"(.*)\": syntax error$", Fault::SqlSyntax},
    {"^unrecognized token: \"(.*)\"$", Fault::SqlSyntax},
    {"^incomplete input$", Fault::SqlTooShort},
    {"^no such function: (.*)$", Fault::SqlFunction},
    {"^wrong number of arguments to function (.*)$", Fault::SqlFunctionValues},
    {"^misuse of aggregate:? ?(.*)$", Fault::SqlFunctionPlace},
    {"^Expression tree is too large.*$", Fault::SqlTooDeep},
    {"^parser stack overflow$", Fault::SqlTooDeep},
    {"^too many terms in compound SELECT$", Fault::SqlTooManyQueries},
    {"^(?:statement|string or blob) too (?:long|big)$", Fault::SqlTooLong},
};

basic::Error faultOf(const QString &complaint)
{
    for (const Complaint &known : Complaints) {
        const auto match =
            QRegularExpression(QString::fromLatin1(known.pattern), QRegularExpression::DotMatchesEverythingOption)
                .match(complaint);
        if (match.hasMatch())
            return basic::Error(known.fault, {}, {match.captured(1)});
    }
    return basic::Error(Fault::SqlOther, {}, {complaint});
}

} // namespace

basic::Error sqlError(const QString &complaint, const QString &sql, int offset, bool hasQuotes)
{
    constexpr qsizetype most = 60;
    basic::Error error = faultOf(complaint);
    if (hasQuotes && error.fault() == Fault::SqlSyntax)
        error = error.with(Fault::DoubleApostrophe);
    const QByteArray utf8 = sql.toUtf8();
    const QString rest = QString::fromUtf8(offset > 0 ? utf8.mid(offset) : utf8);
    const QString shown = rest.size() > most ? rest.left(most) + u'…' : rest;
    return error.with(offset > 0 ? Fault::SqlPlace : Fault::SqlStatement, {shown});
}

} // namespace kalvenor::dao
