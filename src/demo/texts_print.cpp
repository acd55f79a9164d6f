// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/texts.h"

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr LanguageText texts[] = {
    // Print settings: title, elements
    {20800, u"Druckeinstellungen", u"Print settings"},
    {20801, u"Schriften", u"Fonts"},
    {20802, u"Seite", u"Page"},
    {20803, u"Inhalt", u"Contents"},
    {20804, u"Titel", u"Title"},
    {20805, u"Überschrift der Kriterien", u"Heading of the criteria"},
    {20806, u"Kriterien", u"Criteria"},
    {20807, u"Überschrift der Altersliste", u"Heading of the age list"},
    {20808, u"Altersliste", u"Age list"},
    {20809, u"Kopfzeile", u"Header"},
    {20810, u"Fußzeile", u"Footer"},
    // Print settings: fonts and colours
    {20820, u"Schriftart", u"Font"},
    {20821, u"Größe", u"Size"},
    {20822, u"Fett", u"Bold"},
    {20823, u"Kursiv", u"Italic"},
    {20824, u"Unterstrichen", u"Underline"},
    {20825, u"Durchgestrichen", u"Strike through"},
    {20826, u"Schriftfarbe", u"Text colour"},
    {20827, u"Hintergrund", u"Background"},
    {20828, u"Farbe wählen", u"Choose colour"},
    {20829, u"Mustertext", u"Sample text"},
    {20830, u"Muster", u"Sample"},
    {20831, u"Unterstreichen wirkt nur in der Vorschau dieses Fensters, nicht auf den gedruckten Seiten.",
     u"Underline shows in this window's sample only, not on the printed pages."},
    // Print settings: page
    {20840, u"Seitenränder", u"Margins"},
    {20841, u"Links", u"Left"},
    {20842, u"Oben", u"Top"},
    {20843, u"Rechts", u"Right"},
    {20844, u"Unten", u"Bottom"},
    {20845, u"mm", u"mm"},
    {20846, u"Ausrichtung", u"Orientation"},
    {20847, u"Hochformat", u"Portrait"},
    {20848, u"Querformat", u"Landscape"},
    {20849, u"Abstand der Zeilen", u"Spacing of the lines"},
    {20850, u"Größe der Grafik", u"Size of the chart"},
    {20851, u"Schriftgröße der Grafik", u"Font size of the chart"},
    {20852, u"Spaltenbreiten der Altersliste", u"Column widths of the age list"},
    {20853, u"Alter", u"Age"},
    {20854, u"Geschlecht", u"Sex"},
    {20855, u"Name", u"Name"},
    {20856, u"%1 %", u"%1 %"},
    {20857, u"Twips", u"twips"},
    {20858, u"Bildgröße", u"Picture size"},
    {20859, u"Gedruckt wird", u"What is printed"},
    {20860, u"Grafik", u"Chart"},
    {20861, u"Höhe der Grafik; bei 100 % ist sie geformt wie im Fenster",
     u"Height of the chart; at 100 % it has the shape that it has in the window"},
    {20862, u"Bei 3 sind die Schriften so groß wie der Text der Umgebung",
     u"At 3 the fonts are as large as the surrounding text"},
    {20863, u"übriger Platz", u"remaining space"},
    // Print settings: buttons and messages
    {20870, u"OK", u"OK"},
    {20871, u"Abbrechen", u"Cancel"},
    {20872, u"Vorgaben", u"Defaults"},
    {20873, u"Alle Einstellungen auf die Vorgaben setzen", u"Set all settings to their defaults"},
    {20874, u"Die Einstellungen konnten nicht gespeichert werden: %1", u"The settings could not be saved: %1"},
    {20875, u"Die Ränder lassen keinen Platz für den Text.", u"The margins leave no room for the text."},
    {20876, u"Diese Schrift ist nicht vorhanden: %1", u"This font is not available: %1"},
    // Preview: title, navigation
    {20900, u"Seitenansicht", u"Print preview"},
    {20901, u"Erste Seite", u"First page"},
    {20902, u"Vorige Seite", u"Previous page"},
    {20903, u"Nächste Seite", u"Next page"},
    {20904, u"Letzte Seite", u"Last page"},
    {20905, u"Seite %1 von %2", u"Page %1 of %2"},
    {20906, u"Gehe zu Seite", u"Go to page"},
    {20907, u"Zoom", u"Zoom"},
    {20908, u"Vergrößern", u"Zoom in"},
    {20909, u"Verkleinern", u"Zoom out"},
    {20910, u"Text suchen", u"Find text"},
    {20911, u"Weitersuchen", u"Find next"},
    {20912, u"Nicht gefunden: %1", u"Not found: %1"},
    {20913, u"%1 Fundstellen", u"%1 matches"},
    {20914, u"Seiten", u"Pages"},
    {20915, u"Rückwärts suchen", u"Find previous"},
    {20916, u"Originalgröße", u"Actual size"},
    // Preview: tooltips, results
    {20930, u"Die Seiten drucken", u"Print the pages"},
    {20931, u"Die Seiten als RTF, PDF oder HTML speichern", u"Save the pages as RTF, PDF or HTML"},
    {20932, u"Schriften, Farben und Umfang des Berichts einstellen", u"Set fonts, colours and extent of the report"},
    {20933, u"Papier, Ausrichtung und Ränder einstellen", u"Set paper, orientation and margins"},
    {20934, u"Gespeichert: %1", u"Saved: %1"},
    {20935, u"Gedruckt: %1 Seiten", u"Printed: %1 pages"},
    {20936, u"Der Druck wurde abgebrochen.", u"Printing was cancelled."},
    {20937, u"Es ist kein Drucker eingerichtet.", u"No printer is set up."},
    {20938, u"Öffnen", u"Open"},
    {20939, u"Papier", u"Paper"},
    {20940, u"Es ist noch kein Bericht zusammengestellt.", u"No report has been composed yet."},
    {20941, u"In diesem Bereich liegen keine Seiten.", u"There are no pages in this range."},
    {20942, u"Die Datei kann nicht geöffnet werden: %1", u"The file cannot be opened: %1"},
    {20943, u"Nichts gespeichert, der Name muss auf .rtf, .pdf oder .html enden: %1",
     u"Nothing saved, the name must end in .rtf, .pdf or .html: %1"},
    {20944, u"Das Hauptfenster kennt den Befehl %1 nicht.", u"The main window does not know the command %1."},
    {20945, u"Die Seiten werden gedruckt ...", u"The pages are being printed ..."},
    {20946, u"Die PDF-Datei wird geschrieben ...", u"The PDF file is being written ..."},
    {20947, u"Nicht gespeichert: %1", u"Not saved: %1"},
    {20948, u"Das Speichern wurde abgebrochen.", u"Saving was cancelled."},
    // Report
    {20950, u"Mann", u"Man"},
    {20951, u"Frau", u"Woman"},
    {20952, u"nach Geburtsjahr", u"by year of birth"},
    {20953, u"nach Sterbejahr", u"by year of death"},
    {20954, u"Kinder und Nachkommen", u"children and descendants"},
    {20955, u"Eltern und Vorfahren", u"parents and ancestors"},
    {20956, u"nicht markierte Personen", u"unmarked persons"},
    {20957, u"markierte Personen", u"marked persons"},
    {20958, u"Männer", u"men"},
    {20959, u"Frauen", u"women"},
    {20960, u"Männer und Frauen", u"men and women"},
    {20961, u"ab %1", u"from %1"},
    {20962, u"bis %1", u"to %1"},
    {20963, u"%1 bis %2", u"%1 to %2"},
    {20964, u"%1 ohne Geburts- oder Sterbedatum", u"%1 without a date of birth or death"},
    {20965, u"%1 nicht nach der Geburt gestorben", u"%1 not died after birth"},
    {20966, u"(Fortsetzung)", u"(continued)"},
    {20967, u"Alter", u"Age"},
    {20968, u"Geschlecht", u"Sex"},
    {20969, u"Name", u"Name"},
    {20970, u"Jahrhundert", u"Century"},
    {20971, u"alle", u"all"},
};
// clang-format on

} // namespace

std::span<const LanguageText> printTexts()
{
    return texts;
}

} // namespace kalvenor::demo
