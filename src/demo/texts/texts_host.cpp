// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/texts/texts.h"

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr LanguageText texts[] = {
    // Report and its links
    {36, u"Zur Seite dieser Person", u"To this person's page"},
    {100, u"Die Familiendatenbank wurde nicht gefunden. Bitte öffnen Sie im Hauptprogramm eine Familie und starten "
     u"Sie die Altersstatistik dann noch einmal.",
     u"The family database was not found. Please open a family in the main program, then start the age statistic "
     u"again."},
    {116, u"Schriften, Farben und Ränder der Druckseiten lassen sich unter „Druckeinstellungen“ ändern. Dieser "
     u"Hinweis erscheint nur einmal.",
     u"Fonts, colours and margins of the printed pages can be changed under “Print settings”. This hint is shown "
     u"only once."},
    {120, u"Altersstatistik, erstellt mit Kalvenor", u"Age statistic, made with Kalvenor"},
    // Menu of the preview
    {180, u"&Drucken", u"&Print"},
    {181, u"&Speichern", u"&Save"},
    {182, u"&Druckvorlage", u"&Page setup"},
    {183, u"&Fenster schließen", u"&Close window"},
    {184, u"&Hilfe", u"&Help"},
    // Texts of the print control: dialog, cancel button, device line, progress line, zoom choices
    {185, u"Drucken...", u"Printing..."},
    {186, u"Abbrechen", u"Cancel"},
    {187, u"auf %s an %s", u"on the %s on %s"},
    {188, u"Drucke Seite %d von", u"Now printing Page %d of"},
    {189, u"Ganze &Seite|Seiten&breite|&Zwei Seiten|&Miniaturen", u"Whole &Page|Page &Width|&Two Pages|Thumb&nail"},
    // Tool bar of the preview, title of its save dialog
    {190, u"Drucken", u"Print"},
    {191, u"Speichern", u"Save"},
    {192, u"Druckeinstellungen", u"Print settings"},
    {193, u"Seite einrichten", u"Page setup"},
    {194, u"Statistik speichern unter", u"Save statistic as"},
    // Report: heading of the criteria
    {911, u"Auswahlkriterien", u"Selection criteria"},
    // Marking
    {926, u"Es wurden 1000 verwandte Personen bearbeitet. Die Suche nach weiteren Verwandten endet hier; die "
     u"bisherigen Markierungen bleiben erhalten.",
     u"1000 related persons have been processed. The search for further relatives ends here; the marks set so far "
     u"are kept."},
    {930, u"Die Markierungen werden aufgehoben ...", u"The marks are being removed ..."},
    {1201, u"Verwandte markieren", u"Mark relatives"},
    // Print settings and report
    {1204, u"Liste auf neuer Seite beginnen", u"Begin list on a new page"},
    {1205, u"Altersstatistik", u"AgeStatistic"},
    {1206, u"Durchschnittsalter (Männer | Frauen | alle): ", u"Average age (men | women | all): "},
    {1207, u"Grafik: Durchschnittsalter nach Jahrhunderten", u"Chart: average age by century"},
    {1208, u"Nicht berücksichtigt: ", u"Left out: "},
    {1209, u"Niedrigstes | höchstes Alter: ", u"Lowest | highest age: "},
    {1215, u"Name: ", u"Name: "},
    {1216, u"Überschrift der Auswahlkriterien drucken", u"Print heading of the selection criteria"},
    {1217, u"Liste aller Personen nach Alter sortiert", u"List of all persons sorted by age"},
    {1218, u"Überschrift der Altersliste drucken", u"Print heading of the age list"},
    {1219, u"Kopfzeile drucken", u"Print header"},
    {1220, u"Fußzeile drucken", u"Print footer"},
    {1221, u"Grafik drucken", u"Print chart"},
    {1222, u"Geschlecht: ", u"Sex: "},
    {1223, u"Geburtsdatum: ", u"Date of birth: "},
    {1224, u"Sterbedatum: ", u"Date of death: "},
    {1225, u"Letzte Änderung: ", u"Last change: "},
    {1226, u"Gefilterte Liste: ", u"Filtered list: "},
    {1227, u"Verwandte: ", u"Relatives: "},
    {1228, u"Grafik: ", u"Chart: "},
    {1229, u"Anzahl der Personen (Männer | Frauen | alle): ", u"Number of persons (men | women | all): "},
};
// clang-format on

} // namespace

std::span<const LanguageText> hostTexts()
{
    return texts;
}

} // namespace kalvenor::demo
