// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/texts.h"

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr LanguageText texts[] = {
    // Tabs, title, figures
    {20500, u"Einleitung", u"Introduction"},
    {20501, u"Grafik", u"Chart"},
    {20502, u"Altersliste", u"Age list"},
    {20503, u"Titel der Statistik", u"Title of the statistic"},
    {20504, u"Altersstatistik der Familie", u"Age statistic of the family"},
    {20505, u"Männer", u"Men"},
    {20506, u"Frauen", u"Women"},
    {20507, u"Alle", u"All"},
    {20508, u"Anzahl", u"Number"},
    {20509, u"Durchschnittsalter", u"Average age"},
    {20510, u"Niedrigstes | höchstes Alter", u"Lowest | highest age"},
    {20511, u"Nicht berücksichtigt", u"Left out"},
    {20512, u"Männer in der Liste", u"Men in the list"},
    {20513, u"Frauen in der Liste", u"Women in the list"},
    {20514, u"Männer in der Grafik", u"Men in the chart"},
    {20515, u"Frauen in der Grafik", u"Women in the chart"},
    {20516, u"Geburtsjahr", u"Year of birth"},
    {20517, u"Sterbejahr", u"Year of death"},
    {20518, u"Die Grafik ordnet die Personen nach ihrem Geburtsjahr",
     u"The chart groups the persons by their year of birth"},
    {20519, u"Die Grafik ordnet die Personen nach ihrem Sterbejahr",
     u"The chart groups the persons by their year of death"},
    {20520, u"Legende", u"Legend"},
    {20521, u"Die Legende der Grafik zeigen", u"Show the legend of the chart"},
    {20522, u"Alter", u"Age"},
    {20523, u"Name", u"Name"},
    {20524, u"Keine markierte Person hat ein Geburts- und ein Sterbedatum.",
     u"No marked person has both a date of birth and a date of death."},
    {20525, u"Markieren Sie Personen, um ihre Altersstatistik zu sehen.", u"Mark persons to see their age statistic."},
    {20526, u"%1 Personen, deren Alter berechnet werden kann", u"%1 persons whose age can be computed"},
    {20527, u"%1 Personen ohne Geburts- oder Sterbedatum", u"%1 persons without a date of birth or death"},
    {20528, u"%1 Personen, die nicht nach ihrer Geburt gestorben sind",
     u"%1 persons who did not die after their birth"},
    {20529, u"%1 Personen ohne Angabe des Geschlechts", u"%1 persons whose sex is not known"},
    {20530, u"Tabelle", u"Table"},
    {20531, u"Zeilen kopieren", u"Copy lines"},
    {20532, u"Tabelle kopieren", u"Copy table"},
    {20533, u"Person in der Liste zeigen", u"Show person in the list"},
    {20534, u"Anzahl, Durchschnittsalter, niedrigstes und höchstes Alter der markierten Personen",
     u"Number, average, lowest and highest age of the marked persons"},
    // Chart
    {20600, u"Art der Grafik", u"Type of chart"},
    {20601, u"Balken 3D", u"Bars 3-D"},
    {20602, u"Balken", u"Bars"},
    {20603, u"Linien 3D", u"Lines 3-D"},
    {20604, u"Linien", u"Lines"},
    {20605, u"Flächen 3D", u"Areas 3-D"},
    {20606, u"Flächen", u"Areas"},
    {20607, u"Stufen 3D", u"Steps 3-D"},
    {20608, u"Stufen", u"Steps"},
    {20609, u"Kombination 3D", u"Combination 3-D"},
    {20610, u"Kombination", u"Combination"},
    {20611, u"Kreis", u"Pie"},
    {20612, u"XY-Punkte", u"XY scatter"},
    {20620, u"Durchschnittsalter nach Jahrhunderten", u"Average age by century"},
    {20621, u"Jahrhundert", u"Century"},
    {20622, u"Jahre", u"Years"},
    {20623, u"Jahrhundert der Geburt", u"Century of birth"},
    {20624, u"Jahrhundert des Todes", u"Century of death"},
    {20625, u"%1: %2 Jahre", u"%1: %2 years"},
    {20626, u"Bild kopieren", u"Copy picture"},
    {20627, u"Bild speichern ...", u"Save picture ..."},
    {20628, u"Bild speichern unter", u"Save picture as"},
    {20629, u"Gitterlinien", u"Grid lines"},
    {20630, u"Werte anzeigen", u"Show values"},
    {20631, u"Als Tabelle zeigen", u"Show as table"},
    {20632, u"Grafik des Durchschnittsalters nach Jahrhunderten", u"Chart of the average age by century"},
    {20633, u"%1 Personen", u"%1 persons"},
    {20640, u"Keine markierte Person des gewählten Geschlechts hat ein berechenbares Alter.",
     u"No marked person of the chosen sex has an age that can be computed."},
    // Editor of the introduction
    {20700, u"Fett", u"Bold"},
    {20701, u"Kursiv", u"Italic"},
    {20702, u"Unterstrichen", u"Underline"},
    {20703, u"Durchgestrichen", u"Strike through"},
    {20704, u"Linksbündig", u"Align left"},
    {20705, u"Zentriert", u"Centre"},
    {20706, u"Rechtsbündig", u"Align right"},
    {20707, u"Aufzählung", u"Bullets"},
    {20708, u"Schriftart", u"Font"},
    {20709, u"Schriftgröße", u"Font size"},
    {20710, u"Schriftfarbe", u"Text colour"},
    {20711, u"Rückgängig", u"Undo"},
    {20712, u"Wiederherstellen", u"Redo"},
    {20713, u"Ausschneiden", u"Cut"},
    {20714, u"Kopieren", u"Copy"},
    {20715, u"Einfügen", u"Paste"},
    {20716, u"Ohne Formate einfügen", u"Paste without formats"},
    {20717, u"Text öffnen ...", u"Open text ..."},
    {20718, u"Text speichern ...", u"Save text ..."},
    {20719, u"Text öffnen", u"Open text"},
    {20720, u"Text speichern unter", u"Save text as"},
    {20721, u"RTF-Texte (*.rtf)", u"RTF texts (*.rtf)"},
    {20722, u"Einleitender Text des Berichts", u"Introductory text of the report"},
    {20723, u"Schreiben Sie hier, was vor der Statistik stehen soll.",
     u"Write here what shall stand before the statistic."},
    {20724, u"Formate entfernen", u"Remove formats"},
    {20725, u"Blocksatz", u"Justify"},
    {20726, u"Alle Dateien (*)", u"All files (*)"},
};
// clang-format on

} // namespace

std::span<const LanguageText> statisticsTexts()
{
    return texts;
}

} // namespace kalvenor::demo
