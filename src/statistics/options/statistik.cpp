// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/options/statistik.h"

#include "data/datevalue.h"
#include "platform/basic/number.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

const QString ChartSection = u"Grafik"_s;
const QString SexSection = u"Geschlecht"_s;

} // namespace

const std::vector<ChartTypeEntry> &chartTypeEntries()
{
    static const std::vector<ChartTypeEntry> entries{
        {chart::ChartType::Bar3D, language::Text::ChartBars3D},
        {chart::ChartType::Bar, language::Text::ChartBars},
        {chart::ChartType::Line3D, language::Text::ChartLines3D},
        {chart::ChartType::Line, language::Text::ChartLines},
        {chart::ChartType::Area3D, language::Text::ChartAreas3D},
        {chart::ChartType::Area, language::Text::ChartAreas},
        {chart::ChartType::Step3D, language::Text::ChartSteps3D},
        {chart::ChartType::Step, language::Text::ChartSteps},
        {chart::ChartType::Combination3D, language::Text::ChartCombination3D},
        {chart::ChartType::Combination, language::Text::ChartCombination},
        {chart::ChartType::Pie, language::Text::ChartPie},
        {chart::ChartType::XY, language::Text::ChartXY},
    };
    return entries;
}

std::optional<int> grafiktypAus(int chartType)
{
    const auto &entries = chartTypeEntries();
    const auto found = std::find_if(entries.begin(), entries.end(), [chartType](const ChartTypeEntry &entry) {
        return static_cast<int>(entry.type) == chartType;
    });
    return found == entries.end() ? std::nullopt : std::optional(static_cast<int>(found - entries.begin()));
}

chart::ChartType Statistik::type() const
{
    const auto &entries = chartTypeEntries();
    const auto place = static_cast<std::size_t>(grafiktyp);
    return place < entries.size() ? entries[place].type : chart::ChartType::Bar;
}

Statistik readOptions(const host::Host &host)
{
    Statistik options;
    const auto number = [&host](const QString &section, const QString &key, int fallback) {
        return basic::leadingNumber(host.inilesen(host.ownSettingsFile(), section, key, QString::number(fallback)));
    };
    const double type = number(ChartSection, u"Grafiktyp"_s, options.grafiktyp);
    if (type >= 0 && type < static_cast<double>(chartTypeEntries().size()))
        options.grafiktyp = static_cast<int>(type);
    options.legende = number(ChartSection, u"Legende"_s, 1) != 0;
    const QString byBirth = host.inilesen(host.ownSettingsFile(), ChartSection, u"Gebgest"_s, u"1"_s);
    options.nachGeburtsjahr = data::textwahr(byBirth) || basic::leadingNumber(byBirth) != 0; // as a reset reads it
    for (std::size_t i = 0; i < options.geschlechtalter.size(); ++i)
        options.geschlechtalter[i] = number(SexSection, QString::number(i), 1) == 1 ? 1 : 0;
    return options;
}

void writeOptions(const host::Host &host, const Statistik &statistik)
{
    const auto entry = [](const QString &section, const QString &key, int value) {
        return host::Host::Setting{section, key, QString::number(value)};
    };
    std::vector<host::Host::Setting> entries{entry(ChartSection, u"Grafiktyp"_s, statistik.grafiktyp),
                                             entry(ChartSection, u"Legende"_s, statistik.legende ? 1 : 0),
                                             entry(ChartSection, u"Gebgest"_s, statistik.nachGeburtsjahr ? 1 : 0)};
    for (std::size_t i = 0; i < statistik.geschlechtalter.size(); ++i)
        entries.push_back(entry(SexSection, QString::number(i), statistik.geschlechtalter[i]));
    host.inischreiben(host.ownSettingsFile(), entries);
}

} // namespace kalvenor::statistics
