// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

namespace kalvenor::language {

namespace {

constexpr CatalogueText Texts[] = {
    // Print settings: title, elements
    {Text::PrintSettings, u"Druckeinstellungen", u"Print settings"},
    {Text::SettingsFonts, u"Schriften", u"Fonts"},
    {Text::SettingsPage, u"Seite", u"Page"},
    {Text::Contents, u"Inhalt", u"Contents"},
    {Text::ElementTitle, u"Titel", u"Title"},
    {Text::ElementCriteriaHeading, u"Überschrift der Kriterien", u"Criteria heading"},
    {Text::ElementCriteria, u"Kriterien", u"Criteria"},
    {Text::ElementAgeListHeading, u"Überschrift der Altersliste", u"Age list heading"},
    {Text::ElementHeader, u"Kopfzeile", u"Header"},
    {Text::ElementFooter, u"Fußzeile", u"Footer"},
    // Print settings: fonts and colours
    {Text::FontSize, u"Größe", u"Size"},
    {Text::FontBackground, u"Hintergrund", u"Background"},
    {Text::ChooseColour, u"Farbe wählen", u"Choose colour"},
    {Text::SampleText, u"Mustertext", u"Sample text"},
    {Text::UnderlineNote, u"Unterstreichen wirkt nur in der Vorschau dieses Fensters, nicht auf den gedruckten Seiten.",
     u"Underlining shows only in this sample, not on the printed pages."},
    // Print settings: page
    {Text::Margins, u"Seitenränder", u"Margins"},
    {Text::MarginLeft, u"Links", u"Left"},
    {Text::MarginTop, u"Oben", u"Top"},
    {Text::MarginRight, u"Rechts", u"Right"},
    {Text::MarginBottom, u"Unten", u"Bottom"},
    {Text::Millimetres, u"mm", u"mm"},
    {Text::Orientation, u"Ausrichtung", u"Orientation"},
    {Text::Portrait, u"Hochformat", u"Portrait"},
    {Text::Landscape, u"Querformat", u"Landscape"},
    {Text::LineSpacing, u"Zeilenabstand", u"Line spacing"},
    {Text::ChartSize, u"Größe der Grafik", u"Chart size"},
    {Text::ChartFontSize, u"Schriftgröße der Grafik", u"Chart font size"},
    {Text::ColumnWidths, u"Spaltenbreiten der Altersliste", u"Age list column widths"},
    {Text::Age, u"Alter", u"Age"},
    {Text::Name, u"Name", u"Name"},
    {Text::Percent, u"%1 %", u"%1%"},
    {Text::WhatIsPrinted, u"Gedruckt wird", u"What is printed"},
    {Text::ChartSizeTip, u"Höhe der Grafik; bei 100 % ist sie geformt wie im Fenster",
     u"Height of the chart; at 100% it has the same shape as in the window"},
    {Text::ChartFontSizeTip, u"Bei 3 sind die Schriften so groß wie der übrige Text",
     u"At 3 the fonts are as large as the rest of the text"},
    {Text::RemainingSpace, u"übriger Platz", u"remaining space"},
    // Print settings: buttons and messages
    {Text::Ok, u"OK", u"OK"},
    {Text::Defaults, u"Vorgaben", u"Defaults"},
    {Text::DefaultsTip, u"Alle Einstellungen auf die Vorgaben setzen", u"Reset all settings to their defaults"},
    {Text::SettingsNotSaved, u"Die Einstellungen konnten nicht gespeichert werden: %1",
     u"The settings could not be saved: %1"},
    {Text::NoRoomForText, u"Die Ränder lassen keinen Platz für den Text.", u"The margins leave no room for the text."},
    {Text::FontMissing, u"Diese Schrift ist nicht vorhanden: %1", u"This font is not available: %1"},
    // Preview: title, navigation
    {Text::PrintPreview, u"Vorschau", u"Print preview"},
    {Text::FirstPage, u"Erste Seite", u"First page"},
    {Text::PreviousPage, u"Vorige Seite", u"Previous page"},
    {Text::NextPage, u"Nächste Seite", u"Next page"},
    {Text::LastPage, u"Letzte Seite", u"Last page"},
    {Text::PageNumberOf, u"Seite %1 von %2", u"Page %1 of %2"},
    {Text::GoToPage, u"Gehe zu Seite", u"Go to page"},
    {Text::Zoom, u"Zoom", u"Zoom"},
    {Text::ZoomIn, u"Vergrößern", u"Zoom in"},
    {Text::ZoomOut, u"Verkleinern", u"Zoom out"},
    {Text::FindText, u"Text suchen", u"Find text"},
    {Text::FindNext, u"Weitersuchen", u"Find next"},
    {Text::NotFound, u"Nicht gefunden: %1", u"Not found: %1"},
    {Text::MatchCount, u"%1 Fundstellen", u"%1 matches"},
    {Text::Pages, u"Seiten", u"Pages"},
    {Text::FindPrevious, u"Rückwärts suchen", u"Find previous"},
    {Text::ActualSize, u"Originalgröße", u"Actual size"},
    // Preview: tooltips, results
    {Text::PreviewPrintTip, u"Die Seiten drucken", u"Print the pages"},
    {Text::PreviewSaveTip, u"Die Seiten als RTF, PDF oder HTML speichern", u"Save the pages as RTF, PDF or HTML"},
    {Text::PreviewSettingsTip, u"Schriften, Farben und Umfang des Berichts einstellen",
     u"Choose the fonts, colours and contents of the report"},
    {Text::PageSetupTip, u"Papier, Ausrichtung und Ränder einstellen", u"Choose paper, orientation and margins"},
    {Text::PrintedPages, u"Gedruckte Seiten: %1", u"Pages printed: %1"},
    {Text::PrintingCancelled, u"Der Druck wurde abgebrochen.", u"Printing was cancelled."},
    {Text::Paper, u"Papier", u"Paper"},
    {Text::FileNotOpened, u"Die Datei kann nicht geöffnet werden: %1", u"The file cannot be opened: %1"},
    {Text::WrongFileEnding, u"Nichts gespeichert, der Name muss auf .rtf, .pdf oder .html enden: %1",
     u"Nothing was saved; the name must end in .rtf, .pdf or .html: %1"},
    {Text::PrintingPages, u"Die Seiten werden gedruckt…", u"Printing…"},
    {Text::WritingPdf, u"Die PDF-Datei wird geschrieben…", u"Writing the PDF file…"},
    {Text::NotSaved, u"Nicht gespeichert: %1", u"Not saved: %1"},
    {Text::SavingCancelled, u"Das Speichern wurde abgebrochen.", u"Saving was cancelled."},
    // Report
    {Text::ReportMan, u"Mann", u"Man"},
    {Text::ReportWoman, u"Frau", u"Woman"},
    {Text::GroupedByBirth, u"nach Geburtsjahr", u"by year of birth"},
    {Text::GroupedByDeath, u"nach Sterbejahr", u"by year of death"},
    {Text::ChildrenAndDescendants, u"Kinder und Nachkommen", u"children and descendants"},
    {Text::ParentsAndAncestors, u"Eltern und Vorfahren", u"parents and ancestors"},
    {Text::OfUnmarkedPersons, u"nicht markierte Personen", u"unmarked persons"},
    {Text::OfMarkedPersons, u"markierte Personen", u"marked persons"},
    {Text::ReportMen, u"Männer", u"men"},
    {Text::ReportWomen, u"Frauen", u"women"},
    {Text::MenAndWomen, u"Männer und Frauen", u"men and women"},
    {Text::PeriodFrom, u"ab %1", u"from %1"},
    {Text::PeriodTo, u"bis %1", u"to %1"},
    {Text::PeriodFromTo, u"%1 bis %2", u"%1 to %2"},
    {Text::LeftOutWithoutDate, u"%1 ohne Geburts- oder Sterbedatum", u"%1 without a date of birth or death"},
    {Text::ReportPerson, u"Person", u"Person"},
    {Text::LeftOutBySex, u"%1 nicht in der Altersliste (Geschlecht unbekannt oder nicht gewählt)",
     u"%1 not in the age list (sex unknown or not chosen)"},
};

} // namespace

std::span<const CatalogueText> printTexts()
{
    return Texts;
}

} // namespace kalvenor::language
