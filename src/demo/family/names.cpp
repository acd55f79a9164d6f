// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/names.h"

#include <algorithm>
#include <array>
#include <QStringList>

namespace kalvenor::demo {

namespace {

struct Epoch {
    int until;
    const char16_t *men, *women; ///< the most frequent first
};
constexpr Epoch Epochs[] = {
    {1650,
     u"Hans Georg Jacob Michael Peter Claus Conrad Matthes Jörg Veit Barthel Heinrich Martin Lorenz Ulrich Wolf "
     u"Melchior Caspar Balthasar Simon Thomas Andreas Bastian Endres Ambrosius Kilian Étienne",
     u"Margaretha Anna Barbara Catharina Elisabeth Maria Ursula Apollonia Agnes Dorothea Kunigunde Walburga "
     u"Magdalena Gertrud Brigitta Ottilia Sibylla Veronica Christina Eva Regina Sabina Afra Gret Bärbel"},
    {1840,
     u"Johann Friedrich Christian Johannes Georg Heinrich Wilhelm Gottlieb Jacob Michael Carl Andreas Philipp Ludwig "
     u"Joseph Anton Matthäus Adam Ernst August Gottfried Franz Leopold Daniel Tobias Ignaz Xaver Jürgen François",
     u"Maria Anna Catharina Elisabeth Margaretha Dorothea Christina Sophia Barbara Johanna Magdalena Eva Rosina "
     u"Friederica Louise Charlotte Wilhelmine Caroline Henriette Juliane Regina Theresia Walburga Käthe Françoise"},
    {1935,
     u"Karl Wilhelm Heinrich Friedrich Hermann Otto August Hans Paul Ernst Franz Josef Max Georg Walter Kurt Richard "
     u"Fritz Emil Adolf Ludwig Gustav Robert Alfred Erich Willi Rudolf Oskar Hugo Günther Jürgen René",
     u"Anna Maria Martha Emma Frieda Elisabeth Bertha Marie Ida Helene Clara Minna Margarethe Auguste Johanna Luise "
     u"Katharina Emilie Gertrud Else Erna Hedwig Wilhelmine Käthe Hertha Charlotte Pauline Rosa Zoë Irène"},
    {9999,
     u"Thomas Peter Michael Andreas Klaus Wolfgang Jürgen Hans Stefan Christian Martin Frank Bernd Uwe Manfred Dieter "
     u"Günter Hans-Peter Karl-Heinz Ralf Markus Jörg Matthias Alexander Daniel Sebastian Jan Lukas Björn Sören José",
     u"Sabine Susanne Petra Monika Claudia Andrea Birgit Karin Gabriele Ursula Renate Martina Stefanie Christine "
     u"Ingrid Helga Brigitte Angelika Anja Katrin Nicole Julia Laura Lena Sophie Anne-Marie Eva-Maria Dörte Chloé"}};

constexpr const char16_t *CommonSurnames =
    u"Müller Schmidt Schneider Fischer Meyer Weber Busch Wagner Becker Schulz Hoffmann Schäfer Koch Bauer Richter "
    u"Klein Wolf "
    u"Schröder Neumann Schwarz Zimmermann Braun Krüger Hofmann Hartmann Lange Werner Krause Lehmann Maier Köhler König "
    u"Walter Huber Kaiser Fuchs Peters Lang Scholz Möller Weiß Jung Hahn Vogel Friedrich Keller Günther Frank Berger "
    u"Winkler Roth Beck Lorenz Baumann Franke Böhm Winter Kraus Krämer Vogt Stein Jäger Otto Sommer Groß Seidel Brandt "
    u"Graf Ziegler Kuhn Kühn Pohl Engel Horn Bergmann Thomas Sauer Arnold Öttinger Übel Preuß Nüßlein Bäumer "
    u"Dušek Žák Nowak Jönsson Ångström Sørensen Muñoz Lefèvre Noël Saß";
constexpr const char16_t *RareSurnames =
    u"von Berg|von der Heide|von und zu Lilienfeld|Freiherr von Thann|zur Mühlen|vom Hofe|van den Berg|van Dyk|ten "
    u"Brink|"
    u"de la Fontaine|de Béthune|le Grand|Meyer-Schulte|Groß-Bölting|Schulze-Delitzsch|Schulte am Esch|Große Büning|"
    u"Mac Lean|St. Pierre|L'Huillier|d'Arc|O'Brien|O'Connor|Œttli";
constexpr const char16_t *Fronts = u"Ober Nieder Stein Eichen Buchen Birken Linden Schwarzen Weißen Rothen Grün Hohen "
                                   u"Alten Neuen Reichen Wald Feld Mühl Kirch Brunnen Königs Bischofs";
constexpr const char16_t *Backs = u"bach berger hofer feld mann müller mayer wieser bauer egger thaler dorfer kamp "
                                  u"brink meier huber reuter brückner hauser moser öder lößl";

constexpr const char16_t *Places =
    u"Augsburg|Bamberg|Bremen|Celle|Coburg|Dinkelsbühl|Eisenach|Erfurt|Freiburg i. Br.|Görlitz|Gießen|Goslar|"
    u"Halle (Saale)|Hamburg|Kempten (Allgäu)|Köln|Leipzig|Lübeck|Meißen|Münster|Nördlingen|Nürnberg|Regensburg|"
    u"Rothenburg ob der Tauber|Schwäbisch Hall|Stralsund|Trier|Ulm|Worms|Bregenz|Graz|Linz|Salzburg|Wien|Basel|Zürich|"
    u"Colmar|Orléans|Straßburg|Breslau|Danzig|Krakau|Brünn|Eger|Prag|Philadelphia, Pa.|Milwaukee, Wis.";

QStringList split(const char16_t *list, char16_t at)
{
    return QString::fromUtf16(list).split(QChar(at));
}

struct Lists {
    QStringList given;
    struct Group {
        int first, count;
    };
    std::array<Group, 2 * std::size(Epochs)> groups{}; ///< men and women of each epoch
    QStringList surnames = split(CommonSurnames, u' ');
    int common = static_cast<int>(surnames.size());
    int rare = 0;
    QStringList places = split(Places, u'|');

    Lists()
    {
        for (std::size_t i = 0; i < groups.size(); ++i) {
            const QStringList names = split(i % 2 == 1 ? Epochs[i / 2].women : Epochs[i / 2].men, u' ');
            groups[i] = {static_cast<int>(given.size()), static_cast<int>(names.size())};
            given += names;
        }
        surnames += split(RareSurnames, u'|');
        rare = static_cast<int>(surnames.size()) - common;
        for (const QString &front : split(Fronts, u' ')) {
            for (const QString &back : split(Backs, u' '))
                surnames += front + back;
        }
    }
};

const Lists &lists()
{
    static const Lists Instance;
    return Instance;
}

} // namespace

int drawGivenName(int year, bool woman, Random &random)
{
    const auto epoch = std::ranges::find_if(Epochs, [year](const Epoch &e) { return year < e.until; }) - Epochs;
    const auto [first, count] = lists().groups[static_cast<std::size_t>(2 * epoch + (woman ? 1 : 0))];
    return first + std::min(random.below(count), random.below(count));
}

const QString &givenName(int number)
{
    return lists().given[number];
}

int drawSurname(Random &random)
{
    const int common = lists().common;
    const int known = common + lists().rare;
    if (random.chance(900))
        return random.between(common, known - 1);
    return random.chance(6500) ? std::min({random.below(common), random.below(common), random.below(common)})
                               : random.between(known, static_cast<int>(lists().surnames.size()) - 1);
}

const QString &surname(int number)
{
    return lists().surnames[number];
}

int drawPlace(Random &random)
{
    return random.below(static_cast<int>(lists().places.size()));
}

const QString &place(int number)
{
    return lists().places[number];
}

} // namespace kalvenor::demo
