// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/names.h"

#include <iterator>
#include <vector>

namespace kalvenor::demo {

namespace {

struct Town {
    const char16_t *name;
    double latitude;
    double longitude;
    const char16_t *country;
};

constexpr const char16_t *Germany = u"Deutschland";

constexpr Town Towns[] = {
    {u"Augsburg", 48.37, 10.90, Germany},
    {u"Bamberg", 49.89, 10.89, Germany},
    {u"Bautzen", 51.18, 14.42, Germany},
    {u"Bremen", 53.08, 8.80, Germany},
    {u"Celle", 52.62, 10.08, Germany},
    {u"Coburg", 50.26, 10.96, Germany},
    {u"Dinkelsbühl", 49.07, 10.32, Germany},
    {u"Eisenach", 50.98, 10.32, Germany},
    {u"Erfurt", 50.98, 11.03, Germany},
    {u"Flensburg", 54.79, 9.44, Germany},
    {u"Freiburg i. Br.", 48.00, 7.84, Germany},
    {u"Görlitz", 51.15, 14.99, Germany},
    {u"Göttingen", 51.54, 9.92, Germany},
    {u"Gießen", 50.58, 8.68, Germany},
    {u"Goslar", 51.91, 10.43, Germany},
    {u"Halle (Saale)", 51.48, 11.97, Germany},
    {u"Hamburg", 53.55, 9.99, Germany},
    {u"Husum", 54.48, 9.05, Germany},
    {u"Jena", 50.93, 11.59, Germany},
    {u"Kempten (Allgäu)", 47.73, 10.31, Germany},
    {u"Köln", 50.94, 6.96, Germany},
    {u"Leipzig", 51.34, 12.37, Germany},
    {u"Lübeck", 53.87, 10.69, Germany},
    {u"Lüneburg", 53.25, 10.41, Germany},
    {u"Meißen", 51.16, 13.47, Germany},
    {u"Münster", 51.96, 7.63, Germany},
    {u"Nördlingen", 48.85, 10.49, Germany},
    {u"Nürnberg", 49.45, 11.08, Germany},
    {u"Osnabrück", 52.28, 8.05, Germany},
    {u"Passau", 48.57, 13.46, Germany},
    {u"Plauen", 50.50, 12.14, Germany},
    {u"Quedlinburg", 51.79, 11.15, Germany},
    {u"Regensburg", 49.02, 12.10, Germany},
    {u"Rothenburg ob der Tauber", 49.38, 10.18, Germany},
    {u"Schwäbisch Hall", 49.11, 9.74, Germany},
    {u"Soest", 51.57, 8.11, Germany},
    {u"Stralsund", 54.31, 13.09, Germany},
    {u"Trier", 49.76, 6.64, Germany},
    {u"Tübingen", 48.52, 9.06, Germany},
    {u"Ulm", 48.40, 9.99, Germany},
    {u"Weißenburg", 49.03, 10.97, Germany},
    {u"Wismar", 53.89, 11.46, Germany},
    {u"Worms", 49.63, 8.36, Germany},
    {u"Würzburg", 49.79, 9.95, Germany},
    {u"Zwickau", 50.72, 12.49, Germany},
    {u"Bregenz", 47.50, 9.75, u"Österreich"},
    {u"Graz", 47.07, 15.44, u"Österreich"},
    {u"Linz", 48.31, 14.29, u"Österreich"},
    {u"Salzburg", 47.80, 13.04, u"Österreich"},
    {u"Wien", 48.21, 16.37, u"Österreich"},
    {u"Basel", 47.56, 7.59, u"Schweiz"},
    {u"Bern", 46.95, 7.45, u"Schweiz"},
    {u"Zürich", 47.37, 8.54, u"Schweiz"},
    {u"Colmar", 48.08, 7.36, u"Frankreich"},
    {u"Orléans", 47.90, 1.91, u"Frankreich"},
    {u"Straßburg", 48.58, 7.75, u"Frankreich"},
    {u"Breslau", 51.11, 17.03, u"Polen"},
    {u"Danzig", 54.35, 18.65, u"Polen"},
    {u"Krakau", 50.06, 19.94, u"Polen"},
    {u"Brünn", 49.20, 16.61, u"Tschechien"},
    {u"Eger", 50.08, 12.37, u"Tschechien"},
    {u"Prag", 50.09, 14.42, u"Tschechien"},
    {u"Dublin", 53.35, -6.26, u"Irland"},
    {u"Philadelphia, Pa.", 39.95, -75.17, u"USA"},
    {u"Milwaukee, Wis.", 43.04, -87.91, u"USA"},
};

std::vector<Place> makePlaces()
{
    std::vector<Place> all;
    for (const Town &town : Towns)
        all.push_back({QString::fromUtf16(town.name), town.latitude, town.longitude, town.country});
    return all;
}

const std::vector<Place> &places()
{
    static const std::vector<Place> instance = makePlaces();
    return instance;
}

} // namespace

int placeCount()
{
    return static_cast<int>(std::size(Towns));
}

const Place &place(int number)
{
    return places()[static_cast<std::size_t>(number)];
}

} // namespace kalvenor::demo
