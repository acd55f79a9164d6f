// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/names.h"

#include <iterator>
#include <QStringList>
#include <vector>

namespace kalvenor::demo {

namespace {

constexpr const char16_t *PlainSurnames =
    u"Müller Schmidt Schneider Fischer Weber Meyer Wagner Becker Schulz Hoffmann Schäfer Koch Bauer Richter Klein Wolf "
    u"Schröder Neumann Schwarz Zimmermann Braun Krüger Hofmann Hartmann Lange Schmitt Werner Krause Meier Lehmann "
    u"Schmid "
    u"Schulze Maier Köhler Herrmann König Walter Mayer Huber Kaiser Fuchs Peters Lang Scholz Möller Weiß Jung Hahn "
    u"Schubert "
    u"Vogel Friedrich Keller Günther Frank Berger Winkler Roth Beck Lorenz Baumann Franke Albrecht Schuster Simon "
    u"Ludwig "
    u"Böhm Winter Kraus Martin Schumacher Krämer Vogt Stein Jäger Otto Sommer Groß Seidel Heinrich Brandt Haas "
    u"Schreiber "
    u"Graf Dietrich Ziegler Kuhn Kühn Pohl Engel Horn Busch Bergmann Thomas Voigt Sauer Arnold Wolff Pfeiffer Öttinger "
    u"Übel "
    u"Äckerle Großmann Weißenborn Strauß Preuß Hauß Kreß Heß Süß Röß Nüßlein Füßl Göbel Löffler Bäumer Häußler "
    u"Dušek Žák Procházka Novák Šebesta Zeman Král Malý Tománek Žižka Kolár Blažek Urban Hruška Wójcik Król Góra Mazur "
    u"Nowak Kowalski Wrona Kubiak Krawczyk Janson Jönsson Ångström Sørensen Bjørnson Nuñez Gonçalves Muñoz Lefèvre "
    u"Béranger "
    u"Dubois Châtelain Noël Gaßner Citroën L'Huillier d'Arc d'Alençon O'Brien O'Connor Œttli Saß Zöllner Käß";

constexpr const char16_t *Special[] = {
    u"von Berg",           u"von Stein",          u"von der Heide", u"von Roßwein",       u"von und zu Lilienfeld",
    u"Freiherr von Thann", u"zu Rhein",           u"zur Mühlen",    u"zum Felde",         u"vom Hofe",
    u"van den Berg",       u"van der Velde",      u"van Dyk",       u"ter Meer",          u"ten Brink",
    u"de la Fontaine",     u"de Béthune",         u"du Mont",       u"le Grand",          u"aus dem Moore",
    u"Meyer-Schulte",      u"Müller-Lüdenscheid", u"Groß-Bölting",  u"Schulze-Delitzsch", u"Klein-Schmidt",
    u"Meyer zu Bentrup",   u"Schulte am Esch",    u"Große Büning",  u"Mac Lean",          u"St. Pierre",
};

constexpr const char16_t *Fronts =
    u"Ober Nieder Stein Eichen Buchen Birken Linden Schwarzen Weißen Rothen Grün Hohen Alten "
    u"Neuen Reichen Wald Feld Mühl Kirch Brunnen Königs Bischofs";
constexpr const char16_t *Backs =
    u"bach berger hofer feld mann müller mayer wieser bauer egger thaler dorfer kamp brink "
    u"meier huber reuter brückner hauser moser öder lößl";

struct Surnames {
    std::vector<QString> all; ///< common ones, rare ones, composed ones
    int common = 0;
    int rare = static_cast<int>(std::size(Special));
    int composed = 0;

    Surnames()
    {
        for (const QString &name : QString::fromUtf16(PlainSurnames).split(u' '))
            all.push_back(name);
        common = static_cast<int>(all.size());
        for (const char16_t *name : Special)
            all.push_back(QString::fromUtf16(name));
        const auto ends = QString::fromUtf16(Backs).split(u' ');
        for (const QString &front : QString::fromUtf16(Fronts).split(u' ')) {
            for (const QString &back : ends)
                all.push_back(front + back);
        }
        composed = static_cast<int>(all.size()) - common - rare;
    }
};

const Surnames &surnames()
{
    static const Surnames instance;
    return instance;
}

} // namespace

int surnameCount()
{
    return static_cast<int>(surnames().all.size());
}

int drawSurname(Random &random)
{
    const Surnames &names = surnames();
    if (random.chance(900))
        return names.common + random.below(names.rare);
    return random.chance(6500) ? random.below(names.common) : names.common + names.rare + random.below(names.composed);
}

const QString &surname(int number)
{
    return surnames().all[static_cast<std::size_t>(number)];
}

} // namespace kalvenor::demo
