// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/filteroptions.h"

#include <algorithm>
#include <array>
#include <QDate>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

const std::array<std::string, 3> DateKinds{"birth", "death", "change"};
const QString EmptyMask = u"__-__-____"_s;

QString maskText(const char *option, const std::string &word, basic::DateOrder order)
{
    if (word.empty())
        return EmptyMask;
    QString text = QString::fromLocal8Bit(word.c_str());
    const QDate iso = QDate::fromString(text, u"yyyy-MM-dd"_s);
    if (iso.isValid())
        return iso.toString(order == basic::DateOrder::DayMonthYear ? u"dd-MM-yyyy"_s : u"MM-dd-yyyy"_s);
    const bool hasMaskShape = text.size() == EmptyMask.size() && text[2] == u'-' && text[5] == u'-';
    if (!hasMaskShape || !basic::isDate(text, order))
        throw CLI::ValidationError(option, '"' + word + "\" is no date; write dd-mm-yyyy or yyyy-mm-dd");
    return text;
}

} // namespace

void FilterOptions::addTo(CLI::App &command)
{
    CLI::Option *dates =
        command.add_option("--dates", m_dates, "Which dates lie between --from and --to")
            ->delimiter(',')
            ->check(CLI::IsMember(std::vector<std::string>(DateKinds.begin(), DateKinds.end())).description(""))
            ->type_name("birth,death,change");
    m_options.insert(m_options.end(),
                     {command.add_option("--name", m_name, "Whose list name matches; * any text, ? one character")
                          ->type_name("PATTERN"),
                      command.add_option("--sex", m_sex, "m men, w women, mw whoever")
                          ->check(CLI::IsMember({"m", "w", "mw"}).description(""))
                          ->type_name("m|w|mw"),
                      dates, command.add_option("--from", m_from, "Not before")->needs(dates)->type_name("DATE"),
                      command.add_option("--to", m_to, "Not after")->needs(dates)->type_name("DATE")});
}

std::optional<selection::Filter> FilterOptions::filter(selection::PersonList list, basic::DateOrder order) const
{
    if (std::none_of(m_options.begin(), m_options.end(), [](const CLI::Option *option) { return option->count() > 0; }))
        return std::nullopt;
    selection::Filter filter;
    filter.Presse = QString::fromLocal8Bit(m_name.c_str());
    filter.Geschlechtfilter = {m_sex.find('m') != std::string::npos, m_sex.find('w') != std::string::npos};
    for (std::size_t kind = 0; kind < DateKinds.size(); ++kind)
        filter.Datumfilter[kind] = std::find(m_dates.begin(), m_dates.end(), DateKinds[kind]) != m_dates.end();
    filter.Presse_Datum = {maskText("--from", m_from, order), maskText("--to", m_to, order)};
    filter.Filterliste = list;
    return filter;
}

} // namespace kalvenor::app
