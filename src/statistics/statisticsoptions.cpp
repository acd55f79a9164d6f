// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/statisticsoptions.h"

#include "data/datevalue.h"
#include "platform/basic/number.h"

namespace kalvenor::statistics {

namespace {

const QString ChartSection = QStringLiteral("Grafik");
const QString SexSection = QStringLiteral("Geschlecht");

} // namespace

const std::vector<ChartTypeEntry> &chartTypeEntries()
{
    static const std::vector<ChartTypeEntry> entries{
        {ChartType::Bar3D, 20601, "Balken 3D"},
        {ChartType::Bar, 20602, "Balken"},
        {ChartType::Line3D, 20603, "Linien 3D"},
        {ChartType::Line, 20604, "Linien"},
        {ChartType::Area3D, 20605, "Flächen 3D"},
        {ChartType::Area, 20606, "Flächen"},
        {ChartType::Step3D, 20607, "Stufen 3D"},
        {ChartType::Step, 20608, "Stufen"},
        {ChartType::Combination3D, 20609, "Kombination 3D"},
        {ChartType::Combination, 20610, "Kombination"},
        {ChartType::Pie, 20611, "Kreis"},
        {ChartType::XY, 20612, "XY-Punkte"},
    };
    return entries;
}

ChartType StatisticsOptions::type() const
{
    const auto &entries = chartTypeEntries();
    const auto place = static_cast<std::size_t>(grafiktyp);
    return place < entries.size() ? entries[place].type : ChartType::Bar;
}

StatisticsOptions readOptions(const host::Host &host)
{
    StatisticsOptions options;
    const auto number = [&host](const QString &section, const QString &key, int fallback) {
        return leadingNumber(host.inilesen(host.ownSettingsFile(), section, key, QString::number(fallback)));
    };
    const double type = number(ChartSection, QStringLiteral("Grafiktyp"), options.grafiktyp);
    if (type >= 0 && type < static_cast<double>(chartTypeEntries().size()))
        options.grafiktyp = static_cast<int>(type);
    options.legende = number(ChartSection, QStringLiteral("Legende"), 1) != 0;
    const QString byBirth =
        host.inilesen(host.ownSettingsFile(), ChartSection, QStringLiteral("Gebgest"), QStringLiteral("1"));
    options.nachGeburtsjahr = data::textwahr(byBirth) || leadingNumber(byBirth) != 0; // as a reset reads it
    for (std::size_t i = 0; i < options.geschlechtalter.size(); ++i)
        options.geschlechtalter[i] = number(SexSection, QString::number(i), 1) == 1 ? 1 : 0;
    return options;
}

void writeOptions(const host::Host &host, const StatisticsOptions &options)
{
    const auto entry = [](const QString &section, const QString &key, int value) {
        return host::Host::Setting{section, key, QString::number(value)};
    };
    std::vector<host::Host::Setting> entries{
        entry(ChartSection, QStringLiteral("Grafiktyp"), options.grafiktyp),
        entry(ChartSection, QStringLiteral("Legende"), options.legende ? 1 : 0),
        entry(ChartSection, QStringLiteral("Gebgest"), options.nachGeburtsjahr ? 1 : 0)};
    for (std::size_t i = 0; i < options.geschlechtalter.size(); ++i)
        entries.push_back(entry(SexSection, QString::number(i), options.geschlechtalter[i]));
    host.inischreiben(host.ownSettingsFile(), entries);
}

} // namespace kalvenor::statistics
