// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/names.h"

#include <iterator>
#include <QStringList>
#include <vector>

namespace kalvenor::demo {

namespace {

struct Epoch {
    int until;
    const char16_t *men;
    const char16_t *women;
};

constexpr Epoch Epochs[] = {
    {1650,
     u"Hans Georg Jacob Michael Peter Claus Conrad Matthes Jörg Veit Barthel Heinrich Martin Lorenz Ulrich Wolf "
     u"Melchior "
     u"Caspar Balthasar Simon Thomas Paul Andreas Bastian Steffan Lienhart Endres Ambrosius Kilian Cyriacus Dietz "
     u"Hieronymus "
     u"Valentin Erasmus Jost Götz Burkhard Étienne Jérôme Tobias",
     u"Margaretha Anna Barbara Catharina Elisabeth Maria Ursula Apollonia Agnes Dorothea Kunigunde Walburga Magdalena "
     u"Gertrud Brigitta Ottilia Sibylla Veronica Christina Eva Regina Sabina Martha Susanna Afra Juliana Felicitas "
     u"Helena "
     u"Lucia Sophia Amalia Gret Bärbel Euphrosyne Scholastica Geneviève Aurelia Salome Esther Rosina"},
    {1840,
     u"Johann Friedrich Christian Johannes Georg Heinrich Wilhelm Gottlieb Jacob Michael Carl Andreas Philipp Ludwig "
     u"Joseph "
     u"Anton Matthäus Adam Ernst August Gottfried Franz Leopold Daniel Samuel David Tobias Ferdinand Benedikt Ignaz "
     u"Xaver "
     u"Nepomuk Leberecht Fürchtegott Traugott Balthasar Melchior Caspar Valentin Jürgen Antoine Jean-Baptiste François "
     u"Pierre "
     u"Jörg Kaspar Stanislaus Mathias Thomas Lorenz",
     u"Maria Anna Catharina Elisabeth Margaretha Dorothea Christina Sophia Barbara Johanna Magdalena Eva Rosina "
     u"Friederica "
     u"Louise Charlotte Wilhelmine Caroline Henriette Juliane Regina Susanna Theresia Josepha Franziska Walburga "
     u"Ursula "
     u"Eleonore Philippine Sabina Christiane Gertrud Apollonia Amalie Ernestine Auguste Jeanne Françoise Marie-Thérèse "
     u"Käthe "
     u"Helene Rebecca Kreszentia Agatha Clara Antoinette Veronika Ottilie"},
    {1935,
     u"Karl Wilhelm Heinrich Friedrich Hermann Otto August Hans Paul Ernst Franz Josef Max Georg Walter Kurt Richard "
     u"Fritz "
     u"Emil Adolf Ludwig Gustav Robert Alfred Erich Willi Rudolf Oskar Arthur Albert Hugo Theodor Eduard Alois Anton "
     u"Bruno "
     u"Konrad Julius Jakob Johann Martin Eugen Leopold Siegfried Jürgen Günther Kaspar André René Stanislaus Miloslav "
     u"Casimir "
     u"Helmut Werner Gerhard Herbert",
     u"Anna Maria Martha Emma Frieda Elisabeth Bertha Marie Ida Helene Clara Minna Margarethe Auguste Johanna Luise "
     u"Katharina "
     u"Emilie Gertrud Else Erna Hedwig Wilhelmine Käthe Hertha Charlotte Pauline Paula Rosa Ella Meta Olga Selma "
     u"Therese "
     u"Franziska Klara Agnes Dorothea Amalie Ottilie Lina Mathilde Rosalie Zoë Désirée Irène Magdalena Ilse Hildegard "
     u"Irmgard "
     u"Lieselotte Wally"},
    {2100,
     u"Thomas Peter Michael Andreas Klaus Wolfgang Jürgen Hans Stefan Christian Martin Frank Bernd Uwe Manfred Dieter "
     u"Günter "
     u"Hans-Peter Karl-Heinz Ralf Markus Jörg Matthias Alexander Daniel Sebastian Tobias Florian Jan Philipp Lukas "
     u"Felix "
     u"Maximilian Björn Sören Jens Torsten Holger Rainer Horst Heinz Helmut Werner Klaus-Dieter Franz-Josef Kevin René "
     u"André "
     u"José Zbyšek Miloš Noël Tomasz",
     u"Sabine Susanne Petra Monika Claudia Andrea Birgit Karin Gabriele Ursula Renate Martina Stefanie Christine "
     u"Ingrid Helga "
     u"Brigitte Angelika Anja Katrin Nicole Julia Anna Sarah Laura Lena Sophie Marie Hannah Katharina Christina "
     u"Barbara Heike "
     u"Elke Ute Silke Gisela Erika Inge Anne-Marie Eva-Maria Marie-Luise Zoë Chloé Inés Irène Dörte Bärbel Željka Jana "
     u"Anneliese Rosemarie"},
};

struct Names {
    std::vector<QString> all;
    std::vector<bool> woman;
    GivenNames groups[std::size(Epochs)][2];

    void add(const char16_t *list, bool women, GivenNames &group)
    {
        group.first = static_cast<int>(all.size());
        const auto parts = QString::fromUtf16(list).split(u' ');
        for (const QString &name : parts) {
            all.push_back(name);
            woman.push_back(women);
        }
        group.count = static_cast<int>(parts.size());
    }
    Names()
    {
        for (std::size_t i = 0; i < std::size(Epochs); ++i) {
            add(Epochs[i].men, false, groups[i][0]);
            add(Epochs[i].women, true, groups[i][1]);
        }
    }
};

const Names &names()
{
    static const Names instance;
    return instance;
}

} // namespace

GivenNames givenNames(int year, bool woman)
{
    std::size_t epoch = 0;
    while (Epochs[epoch].until <= year)
        ++epoch;
    return names().groups[epoch][woman ? 1 : 0];
}

int givenNameCount()
{
    return static_cast<int>(names().all.size());
}

const QString &givenName(int number)
{
    return names().all[static_cast<std::size_t>(number)];
}

bool isWomansName(int number)
{
    return names().woman[static_cast<std::size_t>(number)];
}

} // namespace kalvenor::demo
