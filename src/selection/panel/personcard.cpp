// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/personcard.h"

#include "data/datevalue.h"
#include "data/person.h"

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr QStringView NoFullDate = u"XXX_______";

} // namespace

QString personCard(data::Session &session, qint32 counter)
try {
    dao::Recordset &persons = *session.databases.Datentabelle;
    language::Sprachmodul &texts = session.language;
    const data::PersonColumns columns(persons);
    persons.seekEqual(counter);
    if (persons.noMatch())
        return {};
    QStringList lines{u"<b>%1</b>"_s.arg(persons.text(columns.Listname).toHtmlEscaped())};
    const QString sex = persons.text(columns.Geschlecht);
    if (sex == u"M" || sex == u"W")
        lines << texts.text(sex == u"M" ? Text::ReportMan : Text::ReportWoman);
    const auto addDate = [&](Text caption, int day, int companion) {
        const std::optional<qint32> number = persons.integer(day);
        if (number && *number != data::UnknownDay && persons.text(companion) != NoFullDate)
            lines << texts.text(caption).arg(texts.dayInWords(*number)).toHtmlEscaped();
    };
    addDate(Text::CardBorn, columns.Geburtsdatum, columns.Geburt_XX);
    addDate(Text::CardDied, columns.Sterbedatum, columns.sterbe_XX);
    const std::optional<qint32> father = persons.integer(columns.Vater);
    const std::optional<qint32> mother = persons.integer(columns.Mutter);
    const auto addParent = [&](Text caption, std::optional<qint32> parent) {
        if (!parent || *parent == 0)
            return;
        persons.seekEqual(*parent);
        if (!persons.noMatch())
            lines << texts.text(caption).arg(persons.text(columns.Listname)).toHtmlEscaped();
    };
    addParent(Text::CardFather, father);
    addParent(Text::CardMother, mother);
    return u"<p style='white-space:pre'>%1</p>"_s.arg(lines.join(u"<br>"_s));
} catch (const basic::Error &) {
    return {}; // the database is gone; the next action says so
}

} // namespace kalvenor::selection
