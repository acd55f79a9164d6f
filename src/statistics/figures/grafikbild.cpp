// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/figures/grafikbild.h"

#include "language/forms/form.h"
#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

std::optional<chart::ChartType> grafiktyp(int number)
{
    switch (const auto type = static_cast<chart::ChartType>(number)) {
    case chart::ChartType::Bar3D:
    case chart::ChartType::Bar:
    case chart::ChartType::Line3D:
    case chart::ChartType::Line:
    case chart::ChartType::Area3D:
    case chart::ChartType::Area:
    case chart::ChartType::Step3D:
    case chart::ChartType::Step:
    case chart::ChartType::Combination3D:
    case chart::ChartType::Combination:
    case chart::ChartType::Pie:
    case chart::ChartType::XY:
        return type;
    }
    return std::nullopt;
}

chart::ChartLook grafiklook(language::Sprachmodul &texts, const host::Host &host, chart::ChartType type, bool legend,
                            bool byBirth)
{
    using language::shownText;
    return {
        .type = type,
        .legend = legend,
        .fontFactor = basic::leadingNumber(host.inilesen(host.ownSettingsFile(), u"Grafik"_s, u"Fontfaktor"_s, u"3"_s)),
        .title = shownText(texts, 20620, u"Durchschnittsalter nach Jahrhunderten"_s),
        .categoryTitle = byBirth ? shownText(texts, 20623, u"Jahrhundert der Geburt"_s)
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
