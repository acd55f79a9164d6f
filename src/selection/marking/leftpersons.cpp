// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking/leftpersons.h"

#include <algorithm>
#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr qsizetype NamesShown = 5;

QString nameOf(dao::Recordset &persons, qint32 counter)
{
    persons.setIndex(u"Counter"_s);
    persons.seekEqual(counter);
    const QString name = persons.noMatch() ? QString() : persons.text(persons.fieldIndex(u"Listname"_s));
    return name.isEmpty() ? QString::number(counter) : u"%1 (%2)"_s.arg(name).arg(counter);
}

} // namespace

QString leftPersons(language::Sprachmodul &texts, data::Datenbankmodul &databases, std::span<const dao::LeftRow> left)
{
    constexpr std::array<std::pair<basic::Fault, Text>, 3> reasons{{
        {basic::Fault::RecordTooOld, Text::LeftTooOld},
        {basic::Fault::KeyRepeated, Text::LeftRepeated},
        {basic::Fault::RowWithoutKey, Text::LeftUnnumbered},
    }};
    QStringList sentences;
    for (const auto &[why, text] : reasons) {
        qsizetype count = 0;
        qsizetype unnamed = 0;
        QStringList names;
        std::vector<qint32> named; // many rows may share a number
        for (const dao::LeftRow &row : left) {
            if (row.why != why)
                continue;
            ++count;
            if (row.key && std::ranges::find(named, *row.key) != named.end())
                continue;
            if (!row.key || names.size() == NamesShown) {
                ++unnamed;
                continue;
            }
            named.push_back(*row.key);
            names << nameOf(*databases.Datentabelle, *row.key);
        }
        if (unnamed > 0 && !names.isEmpty())
            names << texts.text(Text::AndMore).arg(unnamed);
        if (count > 0)
            sentences << texts.text(text).arg(QString::number(count), names.join(u"; "_s));
    }
    return sentences.join(u'\n');
}

} // namespace kalvenor::selection
