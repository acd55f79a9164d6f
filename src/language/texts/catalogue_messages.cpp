// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

namespace kalvenor::language {

namespace {

constexpr CatalogueText Texts[] = {
    // Buttons
    {Text::Close, u"Schließen", u"Close"},
    {Text::SaveVerb, u"&Speichern", u"&Save"},
    {Text::DiscardVerb, u"&Nicht speichern", u"Do&n’t save"},
    // Titles of messages
    {Text::Error, u"Fehler", u"Error"},
    // Messages: databases and files
    {Text::FileNotFound, u"Die Datei wurde nicht gefunden: %1", u"The file was not found: %1"},
    {Text::FileNotReadable, u"Die Datei kann nicht gelesen werden: %1", u"The file cannot be read: %1"},
    {Text::FileDamaged, u"Die Datei ist beschädigt: %1", u"The file is damaged: %1"},
    {Text::FileInUse,
     u"Die Datei wird von einem anderen Programm benutzt. Schließen Sie sie dort und versuchen Sie es noch einmal.",
     u"The file is in use by another program. Close it there and try again."},
    {Text::HostTableMissing, u"Die Tabelle %1 fehlt in %2. Die Installation des Hauptprogramms ist nicht vollständig.",
     u"The table %1 is missing from %2. The installation of the main program is incomplete."},
    {Text::PlaceTable, u"Tabelle %1", u"table %1"},
    {Text::PlacePage, u"Seite %1", u"page %1"},
    {Text::PlaceLine, u"Zeile %1", u"line %1"},
    {Text::NoPictureConversion, u"Die Bildumwandlung steht nicht zur Verfügung; das Bild wird als BMP gespeichert.",
     u"Picture conversion is not available; the picture is saved as BMP."},
    {Text::ReportFailed, u"Der Bericht konnte nicht erstellt werden: %1", u"The report could not be created: %1"},
    {Text::ErrorPrefix, u"Fehler:", u"Error:"},
    {Text::PictureCopyFailed,
     u"Der Bericht ist vollständig; nur die Kopie der Grafik für das Hauptprogramm konnte nicht geschrieben werden: %1",
     u"The report is complete; only the copy of the chart for the main program could not be written: %1"},
    // About box
    {Text::AboutKalvenor, u"Über Kalvenor", u"About Kalvenor"},
    {Text::EventSymbols, u"Zeichen der Ereignisse", u"Event symbols"},
    {Text::LibrariesUsed, u"Verwendete Bibliotheken", u"Libraries used"},
    {Text::AboutDescription, u"Altersstatistik zu einer Familiendatenbank", u"Age statistics for a family database"},
    {Text::AboutLicence, u"Kalvenor ist freie Software unter der GNU General Public License, Version 3 oder später.",
     u"Kalvenor is free software under the GNU General Public License, version 3 or later."},
    {Text::EventPicture, u"Bild", u"Picture"},
    {Text::EventSymbol, u"Zeichen", u"Symbol"},
    {Text::EventName, u"Ereignis", u"Event"},
    // First run
    {Text::Welcome, u"Willkommen", u"Welcome"},
    {Text::ChooseFamily, u"Familiendatenbank wählen…", u"Choose family database…"},
    {Text::MakeDemo, u"Beispieldaten anlegen…", u"Make demonstration data…"},
    {Text::FamilyMissing, u"Die Familiendatenbank %1 ist nicht vorhanden.", u"The family database %1 does not exist."},
    {Text::NoFamilyDatabase, u"Die Datei %1 ist keine Familiendatenbank.", u"The file %1 is not a family database."},
    {Text::UnknownDatabaseFormat, u"Diese Datenbank hat ein Format, das nicht gelesen werden kann: %1",
     u"This database has a format that cannot be read: %1"},
    {Text::FamilyLocked, u"Die Familiendatenbank ist gesperrt, weil ein anderes Programm sie allein benutzt.",
     u"The family database is locked because another program has opened it exclusively."},
    {Text::ChooseDemoFolder, u"Ordner für die Beispieldaten wählen", u"Choose a folder for the demonstration data"},
    {Text::MakingDemo, u"Die Beispieldaten werden angelegt…", u"Creating the demonstration data…"},
    {Text::DemoMade, u"Die Beispieldaten liegen in %1.", u"The demonstration data are in %1."},
    {Text::FamilyDatabases, u"Familiendatenbanken (*.mdb)", u"Family databases (*.mdb)"},
    {Text::OpenFamily, u"Familiendatenbank öffnen", u"Open family database"},
    {Text::HostSettingsMissing, u"Die Einstellungen des Hauptprogramms fehlen: %1",
     u"The main program's settings are missing: %1"},
    {Text::TextDatabaseMissing, u"Die Textdatenbank fehlt: %1", u"The text database is missing: %1"},
    {Text::ChooseHostFolder, u"Ordner des Hauptprogramms wählen…", u"Choose the main program's folder…"},
    {Text::NoHostInFolder, u"In %1 liegt kein Hauptprogramm: Dort fehlt programm.ini.",
     u"There is no main program in %1: it has no programm.ini."},
    {Text::NoFamilyNamed, u"In %1 ist keine Familiendatenbank genannt.", u"No family database is named in %1."},
    {Text::UnknownDrive, u"Für das Laufwerk %1 ist kein Ordner bekannt. Nennen Sie ihn in %2, Abschnitt [Laufwerke].",
     u"No folder is known for the drive %1. Name it in %2, section [Laufwerke]."},
    {Text::HostFolderTip, u"Der Ordner, in dem programm.ini liegt", u"The folder that holds programm.ini"},
    {Text::ChooseFamilyTip, u"Nur für diesmal; das Hauptprogramm behält seine eigene",
     u"Just this once; the main program keeps its own"},
    {Text::MakeDemoTip, u"Ein Hauptprogramm mit einer erfundenen Familie, zum Ausprobieren",
     u"A main program with an invented family, to try things out"},
    {Text::WelcomeText,
     u"Wie alt sind sie geworden? Kalvenor liest die Familiendatenbank Ihres Genealogieprogramms. Sie wählen Personen "
     u"aus; daraus entstehen eine Grafik der Lebensalter, eine Altersliste und ein Bericht zum Drucken.",
     u"How long did they live? Kalvenor reads the family database of your genealogy program. Choose persons, and "
     u"Kalvenor makes a chart, a list of ages and a report of them."},
    {Text::WelcomeSafe, u"In der Datenbank ändert Kalvenor nur, wer markiert ist.",
     u"Kalvenor changes nothing in the database except which persons are marked."},
    {Text::HostsUsedLast, u"Zuletzt benutzt", u"Used recently"},
    {Text::WelcomeHeading, u"Willkommen bei Kalvenor", u"Welcome to Kalvenor"},
    // Help
    {Text::HelpBack, u"Zurück", u"Back"},
    {Text::HelpForward, u"Vorwärts", u"Forward"},
    {Text::HelpNothingFound, u"Nichts gefunden.", u"Nothing found."},
    {Text::Shortcuts, u"Tastenkürzel", u"Keyboard shortcuts"},
    {Text::Manual, u"Anleitung", u"Manual"},
    {Text::SearchManual, u"In der Anleitung suchen", u"Search the manual"},
    {Text::LargerText, u"Größere Schrift", u"Larger text"},
    {Text::SmallerText, u"Kleinere Schrift", u"Smaller text"},
    {Text::NextMatch, u"Nächste Fundstelle", u"Next match"},
    {Text::PreviousMatch, u"Vorige Fundstelle", u"Previous match"},
    // Templates
    {Text::OpenTemplate, u"Vorlage öffnen", u"Open template"},
    {Text::SaveTemplateAs, u"Vorlage speichern unter", u"Save template as"},
    {Text::Templates, u"Vorlagen (*.kvl)", u"Templates (*.kvl)"},
    {Text::TemplateDatabaseMissing, u"Die Vorlage gehört zu einer Datenbank, die nicht vorhanden ist: %1",
     u"The template belongs to a database that does not exist: %1"},
    {Text::OpenWithThisDatabase, u"Mit der geöffneten Datenbank öffnen", u"Open with the current database"},
    {Text::TemplatePersonsMissing, u"%1 Personen der Vorlage sind nicht in der Datenbank.",
     u"%1 persons of the template are not in the database."},
    {Text::SaveChangedTemplate, u"Titel oder Einleitung wurden geändert. Soll die Vorlage gespeichert werden?",
     u"The title or the introduction has been changed. Save the template?"},
    {Text::OpeningTemplate, u"Die Vorlage wird geöffnet…", u"Opening the template…"},
    {Text::NoTemplate, u"Keine Vorlage", u"No template"},
    {Text::Untitled, u"Unbenannt", u"Untitled"},
    {Text::TemplateLastLineOpen,
     u"Die letzte Zeile der Vorlage, Person %1, hat kein Zeilenende. Wurde die Datei abgeschnitten, so ist vielleicht "
     u"eine andere Person gemeint.",
     u"The last line of the template, person %1, has no line end. If the file was cut off, another person may be "
     u"meant."},
    {Text::SavingTemplate, u"Die Vorlage wird gespeichert…", u"Saving the template…"},
    // Commands
    {Text::RuntimeError, u"Laufzeitfehler %1", u"Run-time error %1"},
    {Text::SeeCommandHelp, u"%1 (kalvenor --help nennt Befehle und Optionen)",
     u"%1 (kalvenor --help lists commands and options)"},
    {Text::DateReadAs, u"%1 %2 wird als %3 gelesen, weil ein Datum auf diesem System %4 geschrieben wird",
     u"%1 %2 is read as %3, because dates on this system are %4"},
    {Text::LookedFor, u"Gesucht wurde %1.", u"Looked for %1."},
    {Text::SeeCheck, u"Was vorhanden ist, sagt kalvenor check.", u"kalvenor check shows what was found."},
    {Text::PersonsUnknown, u"%1: Eine Person mit dem Counter %2 gibt es nicht; nichts wurde geändert.",
     u"%1: no person with Counter %2; nothing was changed."},
    {Text::NoWindowPossible, u"Es kann kein Fenster geöffnet werden: %1", u"No window can be opened: %1"},
    {Text::NoDisplay, u"Es gibt keinen Bildschirm für ein Fenster; nennen Sie einen Befehl, --help zählt sie auf.",
     u"There is no display to open a window on; name a command, --help lists them."},
    {Text::CommandProgress, u"%1 %2 % (Strg+C bricht ab)", u"%1 %2 % (Ctrl+C stops)"},
};

} // namespace

std::span<const CatalogueText> messageTexts()
{
    return Texts;
}

} // namespace kalvenor::language
