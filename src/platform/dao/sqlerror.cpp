// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/sqlerror.h"

#include <QRegularExpression>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

namespace {

struct Complaint {
    const char *pattern;
    QStringView words; ///< %1: what the pattern's group holds
};
constexpr Complaint Complaints[] = {
    {"^no such column: (.*)$", u"There is no column \"%1\""},
    {"^ambiguous column name: (.*)$", u"The column \"%1\" stands in more than one table"},
    {"^near \"(.*)\": syntax error$", u"The statement is not understood at \"%1\""},
    {"^unrecognized token: \"(.*)\"$", u"The statement is not understood at \"%1\""},
    {"^incomplete input$", u"The statement ends too early"},
    {"^no such function: (.*)$", u"There is no function \"%1\""},
    {"^wrong number of arguments to function (.*)$", u"The function %1 has too many or too few values"},
    {"^misuse of aggregate:? ?(.*)$", u"The function %1 cannot stand there"},
    {"^Expression tree is too large.*$", u"The statement is nested too deeply"},
    {"^parser stack overflow$", u"The statement is nested too deeply"},
    {"^too many terms in compound SELECT$", u"The statement combines too many queries"},
    {"^(?:statement|string or blob) too (?:long|big)$", u"The statement or a value in it is too long"},
};

} // namespace

QString plainComplaint(const QString &complaint, const QString &sql, int offset, bool hasQuotes)
{
    QString words = complaint;
    for (const Complaint &known : Complaints) {
        const auto match =
            QRegularExpression(QString::fromLatin1(known.pattern), QRegularExpression::DotMatchesEverythingOption)
                .match(complaint);
        if (!match.hasMatch())
            continue;
        words = known.words.toString();
        if (words.contains(u"%1"))
            words = words.arg(match.captured(1));
        break;
    }
    constexpr qsizetype most = 60;
    const QByteArray utf8 = sql.toUtf8();
    const QString rest = QString::fromUtf8(offset > 0 ? utf8.mid(offset) : utf8);
    if (hasQuotes && complaint.contains(u"syntax error"))
        words += u". Write an apostrophe within a text twice ('')"_s;
    words += (offset > 0 ? u". The place begins with: "_s : u". The statement: "_s) + rest.left(most);
    if (rest.size() > most)
        words += u'…';
    return words;
}

} // namespace kalvenor::dao
