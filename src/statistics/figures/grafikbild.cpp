// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/figures/grafikbild.h"

#include "language/texts/sprache.h"
#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

chart::ChartLook grafiklook(language::Sprachmodul &texts, const host::Host &host, const Statistik &statistik)
{
    return {
        .type = statistik.type(),
        .legend = statistik.legende,
        .fontFactor = basic::leadingNumber(host.inilesen(host.ownSettingsFile(), u"Grafik"_s, u"Fontfaktor"_s, u"3"_s)),
        .title = texts.text(Text::ChartTitle),
        .categoryTitle =
            statistik.nachGeburtsjahr ? texts.text(Text::CenturyOfBirth) : texts.text(Text::CenturyOfDeath),
        .valueTitle = texts.text(Text::ChartYears),
        .emptyText = texts.text(Text::MarkPersonsFirst),
        .valueFormat = texts.text(Text::ChartValue),
        .locale = language::anzeigesprache(host),
    };
}

Text leerGrund(const Personenzahlen &persons)
{
    if (persons.markiert == 0)
        return Text::MarkPersonsFirst;
    if (persons.ohneDatum == persons.markiert)
        return Text::NobodyWithDates;
    return Text::NobodyOfSexWithAge;
}

} // namespace kalvenor::statistics
