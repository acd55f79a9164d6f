// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/grafikbild.h"

#include "language/form.h"
#include "platform/basic/number.h"

namespace kalvenor::statistics {

std::optional<ChartType> grafiktyp(int number)
{
    switch (const auto type = static_cast<ChartType>(number)) {
    case ChartType::Bar3D:
    case ChartType::Bar:
    case ChartType::Line3D:
    case ChartType::Line:
    case ChartType::Area3D:
    case ChartType::Area:
    case ChartType::Step3D:
    case ChartType::Step:
    case ChartType::Combination3D:
    case ChartType::Combination:
    case ChartType::Pie:
    case ChartType::XY:
        return type;
    }
    return std::nullopt;
}

ChartLook grafiklook(language::Sprachmodul &texts, const host::Host &host, ChartType type, bool legend, bool byBirth)
{
    using language::shownText;
    return {
        .type = type,
        .legend = legend,
        .fontFactor = leadingNumber(host.inilesen(host.ownSettingsFile(), QStringLiteral("Grafik"),
                                                  QStringLiteral("Fontfaktor"), QStringLiteral("3"))),
        .title = shownText(texts, 20620, QStringLiteral("Durchschnittsalter nach Jahrhunderten")),
        .categoryTitle = byBirth ? shownText(texts, 20623, QStringLiteral("Jahrhundert der Geburt"))
                                 : shownText(texts, 20624, QStringLiteral("Jahrhundert des Todes")),
        .valueTitle = shownText(texts, 20622, QStringLiteral("Jahre")),
        .emptyText = leererText(texts, {}),
        .valueFormat = shownText(texts, 20625, QStringLiteral("%1: %2 Jahre")),
        .locale = language::anzeigesprache(host),
    };
}

QString leererText(language::Sprachmodul &texts, const Personenzahlen &persons)
{
    using language::shownText;
    if (persons.markiert == 0)
        return shownText(texts, 20525, QStringLiteral("Markieren Sie Personen, um ihre Altersstatistik zu sehen."));
    if (persons.ohneDatum == persons.markiert)
        return shownText(texts, 20524, QStringLiteral("Keine markierte Person hat ein Geburts- und ein Sterbedatum."));
    return shownText(texts, 20640,
                     QStringLiteral("Keine markierte Person des gewählten Geschlechts hat ein berechenbares Alter."));
}

} // namespace kalvenor::statistics
