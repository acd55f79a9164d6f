// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/names.h"

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

constexpr const char16_t *germany = u"Deutschland";

constexpr Town towns[] = {
    {u"Augsburg", 48.37, 10.90, germany},
    {u"Bamberg", 49.89, 10.89, germany},
    {u"Bautzen", 51.18, 14.42, germany},
    {u"Bremen", 53.08, 8.80, germany},
    {u"Celle", 52.62, 10.08, germany},
    {u"Coburg", 50.26, 10.96, germany},
    {u"Dinkelsbühl", 49.07, 10.32, germany},
    {u"Eisenach", 50.98, 10.32, germany},
    {u"Erfurt", 50.98, 11.03, germany},
    {u"Flensburg", 54.79, 9.44, germany},
    {u"Freiburg i. Br.", 48.00, 7.84, germany},
    {u"Görlitz", 51.15, 14.99, germany},
    {u"Göttingen", 51.54, 9.92, germany},
    {u"Gießen", 50.58, 8.68, germany},
    {u"Goslar", 51.91, 10.43, germany},
    {u"Halle (Saale)", 51.48, 11.97, germany},
    {u"Hamburg", 53.55, 9.99, germany},
    {u"Husum", 54.48, 9.05, germany},
    {u"Jena", 50.93, 11.59, germany},
    {u"Kempten (Allgäu)", 47.73, 10.31, germany},
    {u"Köln", 50.94, 6.96, germany},
    {u"Leipzig", 51.34, 12.37, germany},
    {u"Lübeck", 53.87, 10.69, germany},
    {u"Lüneburg", 53.25, 10.41, germany},
    {u"Meißen", 51.16, 13.47, germany},
    {u"Münster", 51.96, 7.63, germany},
    {u"Nördlingen", 48.85, 10.49, germany},
    {u"Nürnberg", 49.45, 11.08, germany},
    {u"Osnabrück", 52.28, 8.05, germany},
    {u"Passau", 48.57, 13.46, germany},
    {u"Plauen", 50.50, 12.14, germany},
    {u"Quedlinburg", 51.79, 11.15, germany},
    {u"Regensburg", 49.02, 12.10, germany},
    {u"Rothenburg ob der Tauber", 49.38, 10.18, germany},
    {u"Schwäbisch Hall", 49.11, 9.74, germany},
    {u"Soest", 51.57, 8.11, germany},
    {u"Stralsund", 54.31, 13.09, germany},
    {u"Trier", 49.76, 6.64, germany},
    {u"Tübingen", 48.52, 9.06, germany},
    {u"Ulm", 48.40, 9.99, germany},
    {u"Weißenburg", 49.03, 10.97, germany},
    {u"Wismar", 53.89, 11.46, germany},
    {u"Worms", 49.63, 8.36, germany},
    {u"Würzburg", 49.79, 9.95, germany},
    {u"Zwickau", 50.72, 12.49, germany},
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
    for (const Town &town : towns)
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
    return static_cast<int>(std::size(towns));
}

const Place &place(int number)
{
    return places()[static_cast<std::size_t>(number)];
}

} // namespace kalvenor::demo
