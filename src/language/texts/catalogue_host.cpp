// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

namespace kalvenor::language {

namespace {

constexpr CatalogueText Texts[] = {
    // Report and its links
    {Text::ToPersonsPage, u"Zur Seite dieser Person", u"To this person's page"},
    {Text::FamilyDatabaseMissing,
     u"Die Familiendatenbank wurde nicht gefunden. Bitte öffnen Sie im Hauptprogramm eine Familie und starten Sie die "
     u"Altersstatistik dann noch einmal.",
     u"The family database was not found. Please open a family in the main program, then start the age statistics "
     u"again."},
    {Text::PrintSettingsHint,
     u"Schriften, Farben und Ränder der Druckseiten lassen sich unter „Druckeinstellungen“ ändern. Dieser Hinweis "
     u"erscheint nur einmal.",
     u"Fonts, colours and margins of the printed pages can be changed under “Print settings”. This hint is shown only "
     u"once."},
    {Text::ReportFooter, u"Altersstatistik, erstellt mit Kalvenor", u"Age statistics, made with Kalvenor"},
    // Menu of the preview
    {Text::PreviewMenuPrint, u"&Drucken", u"&Print"},
    {Text::PreviewMenuSave, u"&Speichern", u"&Save"},
    {Text::PreviewMenuPageSetup, u"&Druckvorlage", u"&Page setup"},
    {Text::PreviewMenuClose, u"&Fenster schließen", u"&Close window"},
    {Text::PreviewMenuHelp, u"&Hilfe", u"&Help"},
    // Texts of the print control: dialog, cancel button, device line, progress line, zoom choices
    {Text::PrintingDialog, u"Drucken...", u"Printing..."},
    {Text::PrintingCancel, u"Abbrechen", u"Cancel"},
    {Text::PrintingDevice, u"auf %s an %s", u"on the %s on %s"},
    {Text::PrintingPage, u"Drucke Seite %d von", u"Now printing Page %d of"},
    {Text::ZoomChoices, u"Ganze &Seite|Seiten&breite|&Zwei Seiten|&Miniaturen",
     u"Whole &Page|Page &Width|&Two Pages|Thumb&nail"},
    // Tool bar of the preview, title of its save dialog
    {Text::PreviewPrint, u"Drucken", u"Print"},
    {Text::PreviewSave, u"Speichern", u"Save"},
    {Text::PreviewSettings, u"Druckeinstellungen", u"Print settings"},
    {Text::PageSetup, u"Seite einrichten", u"Page setup"},
    {Text::SaveStatisticAs, u"Statistik speichern unter", u"Save statistics as"},
    // Report: heading of the criteria
    {Text::CriteriaHeading, u"Auswahlkriterien", u"Selection criteria"},
    // Marking
    {Text::RelativesLimitReached,
     u"Es wurden 1000 verwandte Personen bearbeitet. Die Suche nach weiteren Verwandten endet hier; die bisherigen "
     u"Markierungen bleiben erhalten.",
     u"1000 relatives have been processed. The search for further relatives stops here; the marks set so far are "
     u"kept."},
    {Text::UnmarkingAll, u"Die Markierungen werden aufgehoben…", u"Removing the marks…"},
    {Text::MarkRelatives, u"Verwandte markieren", u"Mark relatives"},
    // Print settings and report
    {Text::ListOnNewPage, u"Liste auf neuer Seite beginnen", u"Start list on a new page"},
    {Text::ReportName, u"Altersstatistik", u"AgeStatistics"},
    {Text::CriteriaAverages, u"Durchschnittsalter (Männer | Frauen | alle): ", u"Average age (men | women | all): "},
    {Text::CriteriaChart, u"Grafik: Durchschnittsalter nach Jahrhunderten", u"Chart: average age by century"},
    {Text::CriteriaLeftOut, u"Nicht berücksichtigt: ", u"Left out: "},
    {Text::CriteriaAgeRange, u"Niedrigstes | höchstes Alter: ", u"Lowest | highest age: "},
    {Text::CriteriaName, u"Name: ", u"Name: "},
    {Text::PrintCriteriaHeading, u"Überschrift der Auswahlkriterien drucken",
     u"Print the heading of the selection criteria"},
    {Text::AgeListHeading, u"Liste aller Personen nach Alter sortiert", u"List of all persons sorted by age"},
    {Text::PrintAgeListHeading, u"Überschrift der Altersliste drucken", u"Print the heading of the age list"},
    {Text::PrintHeader, u"Kopfzeile drucken", u"Print the header"},
    {Text::PrintFooter, u"Fußzeile drucken", u"Print the footer"},
    {Text::PrintChart, u"Grafik drucken", u"Print the chart"},
    {Text::CriteriaSex, u"Geschlecht: ", u"Sex: "},
    {Text::CriteriaBirth, u"Geburtsdatum: ", u"Date of birth: "},
    {Text::CriteriaDeath, u"Sterbedatum: ", u"Date of death: "},
    {Text::CriteriaChange, u"Letzte Änderung: ", u"Last change: "},
    {Text::CriteriaList, u"Gefilterte Liste: ", u"Filtered list: "},
    {Text::CriteriaRelatives, u"Verwandte: ", u"Relatives: "},
    {Text::CriteriaGrouping, u"Grafik: ", u"Chart: "},
    {Text::CriteriaPersons, u"Anzahl der Personen (Männer | Frauen | alle): ",
     u"Number of persons (men | women | all): "},
};

} // namespace

std::span<const CatalogueText> hostTexts()
{
    return Texts;
}

} // namespace kalvenor::language
