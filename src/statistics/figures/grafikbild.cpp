// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/figures/grafikbild.h"

#include "language/forms/form.h"
#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

chart::ChartLook grafiklook(language::Sprachmodul &texts, const host::Host &host, const Statistik &statistik)
{
    using language::shownText;
    return {
        .type = statistik.type(),
        .legend = statistik.legende,
        .fontFactor = basic::leadingNumber(host.inilesen(host.ownSettingsFile(), u"Grafik"_s, u"Fontfaktor"_s, u"3"_s)),
        .title = shownText(texts, 20620, u"Durchschnittsalter nach Jahrhunderten"_s),
        .categoryTitle = statistik.nachGeburtsjahr ? shownText(texts, 20623, u"Jahrhundert der Geburt"_s)
                                                   : shownText(texts, 20624, u"Jahrhundert des Todes"_s),
        .valueTitle = shownText(texts, 20622, u"Jahre"_s),
        .emptyText = leererText(texts, {}),
        .valueFormat = shownText(texts, 20625, u"%1: %2 Jahre"_s),
        .locale = language::anzeigesprache(host),
    };
}

QString leererText(language::Sprachmodul &texts, const Personenzahlen &persons)
{
    using language::shownText;
    if (persons.markiert == 0)
        return shownText(texts, 20525, u"Markieren Sie Personen, um ihre Altersstatistik zu sehen."_s);
    if (persons.ohneDatum == persons.markiert)
        return shownText(texts, 20524, u"Keine markierte Person hat ein Geburts- und ein Sterbedatum."_s);
    return shownText(texts, 20640, u"Keine markierte Person des gewählten Geschlechts hat ein berechenbares Alter."_s);
}

} // namespace kalvenor::statistics
