// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/texts/texts.h"

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr LanguageText texts[] = {
    // Buttons
    {21000, u"OK", u"OK"},
    {21001, u"Abbrechen", u"Cancel"},
    {21002, u"Ja", u"Yes"},
    {21003, u"Nein", u"No"},
    {21004, u"Schließen", u"Close"},
    {21005, u"Wiederholen", u"Retry"},
    {21006, u"Speichern", u"Save"},
    {21007, u"Nicht speichern", u"Don't save"},
    {21008, u"Durchsuchen ...", u"Browse ..."},
    {21009, u"Einzelheiten", u"Details"},
    // Titles of messages
    {21020, u"Fehler", u"Error"},
    {21021, u"Hinweis", u"Note"},
    {21022, u"Warnung", u"Warning"},
    {21023, u"Frage", u"Question"},
    {21024, u"Laufzeitfehler", u"Run-time error"},
    // Messages: databases and files
    {21040, u"Die Datei wurde nicht gefunden: %1", u"The file was not found: %1"},
    {21041, u"Die Datei kann nicht gelesen werden: %1", u"The file cannot be read: %1"},
    {21042, u"Die Datei kann nicht geschrieben werden: %1", u"The file cannot be written: %1"},
    {21043, u"Die Datei ist beschädigt: %1", u"The file is damaged: %1"},
    {21044, u"Die Datenbank ist schreibgeschützt. Markierungen können nicht gespeichert werden.",
     u"The database is read-only. Marks cannot be saved."},
    {21045, u"Ein anderes Programm hat die Datenbank geändert. Die Listen wurden neu geladen.",
     u"Another program has changed the database. The lists were reloaded."},
    {21046, u"Die Datei wird von einem anderen Programm benutzt. Schließen Sie sie dort und versuchen Sie es noch "
     u"einmal.",
     u"Another program is using the file. Close it there and try again."},
    {21047, u"Auf dem Datenträger ist kein Platz mehr.", u"There is no space left on the disk."},
    {21048, u"Die Tabelle %1 fehlt in %2. Die Installation des Hauptprogramms ist nicht vollständig.",
     u"The table %1 is missing in %2. The installation of the main program is not complete."},
    {21049, u"Für diese Person kann keine Markierung gespeichert werden: %1",
     u"No mark can be saved for this person: %1"},
    {21050, u"Fehler: %1", u"Error: %1"},
    {21051, u"Die Datei %1 ist schon vorhanden. Soll sie ersetzt werden?", u"The file %1 exists already. Replace it?"},
    {21052, u"Die Bildumwandlung steht nicht zur Verfügung; das Bild wird als BMP gespeichert.",
     u"Picture conversion is not available; the picture is saved as BMP."},
    {21053, u"Der Bericht konnte nicht erstellt werden: %1", u"The report could not be made: %1"},
    {21054, u"Fehler:", u"Error:"},
    // Messages: marking
    {21070, u"%1 Personen markieren?", u"Mark %1 persons?"},
    {21071, u"Markierungen von %1 Personen aufheben?", u"Unmark %1 persons?"},
    {21072, u"Die Person mit der Nummer %1 ist nicht in der Datenbank.",
     u"The person with the number %1 is not in the database."},
    {21073, u"%1 Personen markiert, bevor abgebrochen wurde.", u"%1 persons were marked before it was cancelled."},
    // About box
    {21100, u"Über Kalvenor", u"About Kalvenor"},
    {21101, u"Zeichen der Ereignisse", u"Symbols of the events"},
    {21102, u"Verwendete Bibliotheken", u"Libraries used"},
    {21103, u"Lizenz", u"Licence"},
    {21104, u"Version: ", u"Version: "},
    {21105, u"Altersstatistik zu einer Familiendatenbank", u"Age statistic of a family database"},
    {21106, u"Kalvenor ist freie Software unter der GNU General Public License, Version 3 oder später.",
     u"Kalvenor is free software under the GNU General Public License, version 3 or later."},
    {21107, u"Bild", u"Picture"},
    {21108, u"Zeichen", u"Symbol"},
    {21109, u"Ereignis", u"Event"},
    // First run
    {21200, u"Willkommen", u"Welcome"},
    {21201, u"Kalvenor wird aus einem Ordner unterhalb des Hauptprogramms gestartet. Hier wurde kein Hauptprogramm "
     u"gefunden.",
     u"Kalvenor is started from a folder below the main program. No main program was found here."},
    {21202, u"Familiendatenbank wählen ...", u"Choose family database ..."},
    {21203, u"Beispieldaten anlegen ...", u"Make demonstration data ..."},
    {21204, u"Beenden", u"Quit"},
    {21205, u"Die Familiendatenbank %1 ist nicht vorhanden.", u"The family database %1 does not exist."},
    {21206, u"Die Datei %1 ist keine Familiendatenbank.", u"The file %1 is not a family database."},
    {21207, u"Diese Datenbank hat ein Format, das nicht gelesen werden kann: %1",
     u"This database has a format that cannot be read: %1"},
    {21208, u"Die Familiendatenbank ist gesperrt, weil ein anderes Programm sie allein benutzt.",
     u"The family database is locked because another program uses it exclusively."},
    {21209, u"Ordner für die Beispieldaten wählen", u"Choose a folder for the demonstration data"},
    {21211, u"Die Beispieldaten werden angelegt ...", u"The demonstration data are being made ..."},
    {21212, u"Die Beispieldaten liegen in %1.", u"The demonstration data are in %1."},
    {21213, u"Familiendatenbanken (*.mdb)", u"Family databases (*.mdb)"},
    {21214, u"Familiendatenbank öffnen", u"Open family database"},
    {21215, u"Die Einstellungen des Hauptprogramms fehlen: %1", u"The settings of the main program are missing: %1"},
    {21216, u"Die Textdatenbank fehlt: %1", u"The text database is missing: %1"},
    {21217, u"Ordner des Hauptprogramms wählen ...", u"Choose the main program's folder ..."},
    {21218, u"In %1 liegt kein Hauptprogramm: Dort fehlt programm.ini.",
     u"There is no main program in %1: it has no programm.ini."},
    {21219, u"In %1 ist keine Familiendatenbank genannt.", u"No family database is named in %1."},
    {21220, u"Für das Laufwerk %1 ist kein Ordner bekannt. Nennen Sie ihn in %2, Abschnitt [Laufwerke].",
     u"No folder is known for the drive %1. Name it in %2, section [Laufwerke]."},
    {21221, u"Der Ordner, in dem programm.ini liegt", u"The folder that holds programm.ini"},
    {21222, u"Nur für diesmal; das Hauptprogramm behält seine eigene", u"For this time only; the main program keeps its own"},
    {21223, u"Ein Hauptprogramm mit einer erfundenen Familie, zum Ausprobieren",
     u"A main program with an invented family, to try things out"},
    // Help
    {21300, u"Hilfe", u"Help"},
    {21301, u"Inhalt", u"Contents"},
    {21302, u"Suchen", u"Search"},
    {21303, u"Zurück", u"Back"},
    {21304, u"Vorwärts", u"Forward"},
    {21305, u"Nichts gefunden.", u"Nothing found."},
    {21306, u"Erste Schritte", u"First steps"},
    {21307, u"Personen auswählen", u"Selecting persons"},
    {21308, u"Statistik und Grafik", u"Statistic and chart"},
    {21309, u"Drucken und speichern", u"Printing and saving"},
    {21310, u"Vorlagen", u"Templates"},
    {21311, u"Tastenkürzel", u"Keyboard shortcuts"},
    {21312, u"Anleitung", u"Manual"},
    {21313, u"In der Anleitung suchen", u"Search the manual"},
    {21314, u"Größere Schrift", u"Larger text"},
    {21315, u"Kleinere Schrift", u"Smaller text"},
    {21316, u"Nächste Fundstelle", u"Next match"},
    {21317, u"Vorige Fundstelle", u"Previous match"},
    {21318, u"%1 von %2", u"%1 of %2"},
    // Templates
    {21400, u"Vorlage öffnen", u"Open template"},
    {21401, u"Vorlage speichern unter", u"Save template as"},
    {21402, u"Vorlagen (*.kvl)", u"Templates (*.kvl)"},
    {21403, u"Die Vorlage ist beschädigt (Zeile %1): %2", u"The template is damaged (line %1): %2"},
    {21404, u"Die Vorlage gehört zu einer Datenbank, die nicht vorhanden ist: %1",
     u"The template belongs to a database that does not exist: %1"},
    {21405, u"Mit der geöffneten Datenbank öffnen", u"Open with the database at hand"},
    {21406, u"%1 Personen der Vorlage sind nicht in der Datenbank.",
     u"%1 persons of the template are not in the database."},
    {21407, u"Titel oder Einleitung wurden geändert. Soll die Vorlage gespeichert werden?",
     u"Title or introduction have been changed. Save the template?"},
    {21409, u"Die Vorlage wird geöffnet ...", u"The template is being opened ..."},
    {21410, u"Keine Vorlage", u"No template"},
    {21412, u"Unbenannt", u"Untitled"},
    {21413, u"Das ist keine Vorlage: %1", u"This is not a template: %1"},
};
// clang-format on

} // namespace

std::span<const LanguageText> messageTexts()
{
    return texts;
}

} // namespace kalvenor::demo
