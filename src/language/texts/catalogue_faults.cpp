// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

#include "platform/basic/fault.h"

namespace kalvenor::language {

namespace {

using basic::Fault;

constexpr Text of(Fault fault)
{
    return static_cast<Text>(fault);
}

constexpr CatalogueText Texts[] = {
    // Numbers, texts, memory
    {of(Fault::OutOfMemory), u"Der Arbeitsspeicher reicht dafür nicht aus.", u"There is not enough memory for this."},
    {of(Fault::NumberOutOfRange), u"Die Zahl %1 liegt nicht zwischen %2 und %3.",
     u"The number %1 is not between %2 and %3."},
    {of(Fault::NoNumber), u"„%1“ ist keine Zahl.", u"“%1” is not a number."},
    {of(Fault::AmountTooLarge), u"Der Betrag %1 ist zu groß.", u"The amount %1 is too large."},
    {of(Fault::LengthImpossible), u"Ein Text kann nicht auf die Länge %1 gekürzt werden.",
     u"A text cannot be cut to a length of %1."},
    {of(Fault::StartImpossible), u"Ein Text kann nicht ab der Stelle %1 genommen werden; die erste ist 1.",
     u"A text cannot be taken from position %1; the first is 1."},
    {of(Fault::Misuse), u"Das Programm hat einen Fehler gemacht: %1", u"The program has made a mistake: %1"},
    {of(Fault::FileEnds), u"Die Datei endet hier, aber etwas fehlt noch.",
     u"The file ends here, but something is still missing."},
    {of(Fault::TextNotClosed),
     u"Der Text, der hier beginnt, hat kein schließendes Anführungszeichen; wahrscheinlich wurde die Datei "
     u"abgeschnitten.",
     u"The text that begins here has no closing quote; the file was probably cut off."},
    {of(Fault::TextGoesOn),
     u"Hinter dem schließenden Anführungszeichen des Textes, der hier beginnt, steht noch etwas.",
     u"Something follows the closing quote of the text that begins here."},
    {of(Fault::SettingOutOfRange), u"Die Einstellung %1=%2 im Abschnitt [%3] ist zu groß oder zu klein.",
     u"The setting %1=%2 in section [%3] is too large or too small."},
    // Stopped by the person
    {of(Fault::Stopped), u"Abgebrochen.", u"Stopped."},
    {of(Fault::StoppedIncomplete), u"Abgebrochen; das Ergebnis ist nicht vollständig.",
     u"Stopped; the result is not complete."},
    {of(Fault::StoppedUnwritten), u"Abgebrochen; es wurde nichts geschrieben.", u"Stopped; nothing was written."},
    {of(Fault::StoppedUnchanged), u"Abgebrochen; keine Markierung wurde geändert.", u"Stopped; no mark was changed."},
    {of(Fault::StoppedOpening), u"Abgebrochen; die Vorlage wurde nicht geöffnet.",
     u"Stopped; the template was not opened."},
    {of(Fault::StoppedSaving), u"Abgebrochen; die Vorlage wurde nicht gespeichert.",
     u"Stopped; the template was not saved."},
    {of(Fault::StoppedReport), u"Der Bericht wurde abgebrochen.", u"The report was stopped."},
    {of(Fault::StoppedChart), u"Die Grafik wurde abgebrochen; sie ist nicht berechnet.",
     u"The chart was stopped before it was computed."},
    {of(Fault::StoppedAgeList), u"Die Altersliste wurde abgebrochen; sie ist nicht vollständig.",
     u"The age list was stopped; it is not complete."},
    {of(Fault::StoppedDemo), u"Abgebrochen; die Beispieldaten wurden nicht angelegt.",
     u"Stopped; the demonstration was not made."},
    // Files that are written
    {of(Fault::OutputIncomplete),
     u"Das Ergebnis konnte nicht vollständig ausgegeben werden: Der Datenträger ist voll, oder niemand liest mehr mit.",
     u"The result could not be written completely: the disk is full, or the reader has gone."},
    {of(Fault::NoPlainFile),
     u"Die %1-Datei kann nicht geschrieben werden: Dies ist ein Ordner oder ein Gerät, keine Datei. Wählen Sie einen "
     u"anderen Namen.",
     u"The %1 file cannot be written: this is a folder or a device, not a file. Choose another name."},
    {of(Fault::PlaceNotWritable),
     u"Die %1-Datei kann nicht geschrieben werden: %2. Wählen Sie einen anderen Ordner oder Namen, oder erlauben Sie "
     u"dort das Schreiben.",
     u"The %1 file cannot be written: %2. Choose another folder or name, or allow writing there."},
    {of(Fault::DiskFull),
     u"Die %1-Datei kann nicht geschrieben werden: Vielleicht ist der Datenträger voll. Schaffen Sie dort Platz oder "
     u"wählen Sie einen anderen; eine ältere Datei dieses Namens ist unverändert.",
     u"The %1 file cannot be written: the disk may be full. Make room on it or choose another one; an older file of "
     u"this name is unchanged."},
    {of(Fault::NotReplaced),
     u"Die %1-Datei kann nicht geschrieben werden: %2. Schließen Sie sie, wo sie sonst geöffnet ist, oder wählen Sie "
     u"einen anderen Namen; die ältere Datei ist unverändert.",
     u"The %1 file cannot be written: %2. Close it where it is open in another program, or choose another name; the "
     u"older file is unchanged."},
    {of(Fault::NotWritten), u"Die Datei kann nicht geschrieben werden: %1", u"The file cannot be written: %1"},
    {of(Fault::NotRenamed), u"Die Datei kann nicht umbenannt werden.", u"The file cannot be renamed."},
    {of(Fault::FolderNotMade),
     u"Der Ordner kann nicht angelegt werden. Wählen Sie einen Ordner, in den Sie schreiben dürfen.",
     u"The folder cannot be created. Choose a folder that you may write to."},
    {of(Fault::TargetIsDatabase),
     u"%1 ist eine Datenbank oder heißt wie eine und wird nie überschrieben. Wählen Sie einen anderen Namen.",
     u"%1 is a database, or is named like one, and is never overwritten. Choose another name."},
    {of(Fault::TargetIsHostSettings),
     u"%1 heißt wie die Einstellungen des Hauptprogramms und wird nicht überschrieben. Wählen Sie einen anderen Namen.",
     u"%1 is named like the main program's settings and is not overwritten. Choose another name."},
    {of(Fault::TargetIsLink),
     u"Diese Datei gehört zum Bericht, ist hier aber eine Verknüpfung auf eine andere. Löschen Sie die Verknüpfung "
     u"oder "
     u"wählen Sie einen anderen Namen für den Bericht.",
     u"This file belongs to the report, but here it is a link to another one. Delete the link or choose another name "
     u"for the report."},
    // Pages, printing, charts, pictures
    {of(Fault::LineTooHigh),
     u"Eine Textzeile ist höher als die Seite zwischen ihren Rändern. Wählen Sie eine kleinere Schrift oder kleinere "
     u"Ränder.",
     u"A line of text is taller than the page between its margins. Choose a smaller font or smaller margins."},
    {of(Fault::NoRoomOnPaper), u"Die Ränder lassen auf dem Papier keinen Platz für Text. Wählen Sie kleinere Ränder.",
     u"The margins leave no room for text on the paper. Choose smaller margins."},
    {of(Fault::NoReport), u"Es ist noch kein Bericht zusammengestellt.", u"No report has been composed yet."},
    {of(Fault::NoPrinter), u"Es ist kein Drucker eingerichtet.", u"No printer is set up."},
    {of(Fault::NoPagesInRange), u"In diesem Bereich liegen keine Seiten.", u"There are no pages in this range."},
    {of(Fault::PrintFileNotWritten),
     u"Die Datei kann nicht geschrieben werden. Wählen Sie einen anderen Ordner oder Namen, oder schaffen Sie Platz "
     u"auf dem Datenträger.",
     u"The file cannot be written. Choose another folder or name, or make room on the disk."},
    {of(Fault::PrinterRefused),
     u"Der Drucker nimmt die Seiten nicht an. Sehen Sie nach, ob er eingeschaltet und angeschlossen ist.",
     u"The printer does not accept the pages. Check whether it is switched on and connected."},
    {of(Fault::NoPrintElement), u"In den Druckeinstellungen gibt es kein Element %1.",
     u"There is no element %1 in the print settings."},
    {of(Fault::ChartEnding),
     u"Eine Grafik kann als .png, .jpg, .jpeg oder .svg gespeichert werden. Wählen Sie eine dieser Endungen.",
     u"A chart can be saved as .png, .jpg, .jpeg or .svg. Choose one of these endings."},
    {of(Fault::PictureSize), u"Ein Bild kann nicht %1 mal %2 Bildpunkte groß sein. Wählen Sie für jede Seite 1 bis %3.",
     u"A picture cannot be %1 by %2 pixels large. Choose 1 to %3 for each side."},
    {of(Fault::PictureTooLarge),
     u"Für ein Bild dieser Größe reicht der Arbeitsspeicher nicht. Wählen Sie eine kleinere.",
     u"There is not enough memory for a picture of this size. Choose a smaller one."},
    {of(Fault::PictureNotWritten),
     u"Das Bild kann nicht geschrieben werden: %1. Wählen Sie einen anderen Ordner oder Namen.",
     u"The picture cannot be written: %1. Choose another folder or name."},
    {of(Fault::PictureWithoutEnding), u"Der Name des Bildes hat keine Endung.",
     u"The name of the picture has no extension."},
    {of(Fault::NoPicture), u"Es gibt kein Bild, das geschrieben werden könnte.", u"There is no picture to write."},
    {of(Fault::NoPictureRoom), u"Es gibt kein Bild oder keinen Platz dafür.",
     u"There is no picture or no room for it."},
    {of(Fault::PageUnfinished),
     u"Die HTML-Seite konnte nicht fertiggestellt werden: %1. Speichern Sie sie in einem Ordner, in den geschrieben "
     u"werden kann.",
     u"The page could not be finished: %1. Save it in a folder that can be written."},
    {of(Fault::WildcardInName), u"Der Dateiname darf kein * oder ? enthalten. Wählen Sie einen anderen.",
     u"The file name must not contain * or ?. Choose another one."},
    // Statistics
    {of(Fault::DayOutOfRange),
     u"Die Tagesnummer %1 liegt nicht in den Jahren 100 bis 9999; berichtigen Sie das Datum oder heben Sie die "
     u"Markierung der Person auf.",
     u"The day number %1 lies outside the years 100 to 9999; correct the date or unmark the person."},
    {of(Fault::IntroductionNotRead), u"Die Einleitung kann nicht gelesen werden: %1.",
     u"The introduction cannot be read: %1."},
    {of(Fault::IntroductionNotRtf), u"Die Einleitung muss ein RTF-Text sein; ein solcher beginnt mit {\\rtf.",
     u"The introduction must be an RTF text, which begins with {\\rtf."},
    {of(Fault::IntroductionTooLarge), u"Die Einleitung ist zu groß. Ihre Datei kann bis zu %1 MB haben.",
     u"The introduction is too large. Its file can have up to %1 MB."},
    {of(Fault::IntroductionTooLong),
     u"Die Einleitung ist zu lang. Sie kann bis zu %1 Zeichen, %2 Wechsel des Formats und %3 Absätze haben.",
     u"The introduction is too long. It can have up to %1 characters, %2 changes of format and %3 paragraphs."},
    // Demonstration
    {of(Fault::PathTooLong),
     u"Die Einstellungsdatei des Hauptprogramms kann diesen Pfad nicht aufnehmen: Er ist länger als 255 Zeichen. "
     u"Wählen Sie einen Ordner mit kürzerem Pfad.",
     u"The host's settings file cannot hold this path: it is longer than 255 characters. Choose a folder with a "
     u"shorter path."},
    {of(Fault::DemoSize), u"Beispieldaten haben 1 bis 2.000.000 Personen, nicht %1.",
     u"A demonstration has 1 to 2,000,000 persons, not %1."},
    {of(Fault::DemoNowhere), u"Es ist kein Ordner genannt, in dem die Beispieldaten angelegt werden sollen.",
     u"No folder is named in which to make the demonstration."},
    {of(Fault::FileInTheWay), u"Hier gibt es schon eine Datei dieses Namens. Wählen Sie einen anderen Ordner.",
     u"A file of this name already exists here. Choose another folder."},
    {of(Fault::FolderNotEmpty),
     u"Diesen Ordner gibt es schon, und er ist nicht leer. Nichts wurde geändert; wählen Sie einen anderen Ordner oder "
     u"entfernen Sie erst diesen.",
     u"This folder already exists and is not empty. Nothing was changed; choose another folder or remove this one "
     u"first."},
    // Templates
    {of(Fault::TemplateMissing), u"Die Vorlage kann nicht geöffnet werden: %1.", u"The template cannot be opened: %1."},
    {of(Fault::TemplateUnreadable), u"Die Vorlage kann nicht gelesen werden: %1.", u"The template cannot be read: %1."},
    {of(Fault::TemplateTooLarge), u"Das ist keine Vorlage: Die Datei ist %1 MB groß.",
     u"This is not a selection template: it is %1 MB large."},
    {of(Fault::TemplateCut),
     u"Die Datei endet mitten in dieser Zeile (%1); sie wurde abgeschnitten und kann nicht geöffnet werden. Nehmen Sie "
     u"eine andere Kopie der Vorlage oder speichern Sie sie neu.",
     u"The file ends in the middle of this line (%1); it was cut off and cannot be opened. Use another copy of the "
     u"template or save it again."},
    {of(Fault::NoTemplate),
     u"Das ist keine Vorlage: Die erste Zeile müsste der Pfad einer Familiendatenbank in doppelten Anführungszeichen "
     u"sein.",
     u"This is not a selection template: its first line must be the path of a family database in double quotes."},
    {of(Fault::TemplateTextExpected),
     u"Hier müsste ein Text in doppelten Anführungszeichen stehen (%1), aber es steht „%2“ da. Die Vorlage ist "
     u"beschädigt; nehmen Sie eine andere Kopie oder speichern Sie sie neu.",
     u"A text in double quotes should stand here (%1), but there is “%2”. The template is damaged; use another copy of "
     u"it or save it again."},
    {of(Fault::TemplateNumberExpected),
     u"Hier müsste eine Zahl von %2 bis %3 stehen (%1), aber es steht „%4“ da. Die Vorlage ist beschädigt; nehmen Sie "
     u"eine andere Kopie oder speichern Sie sie neu.",
     u"A number from %2 to %3 should stand here (%1), but there is “%4”. The template is damaged; use another copy of "
     u"it or save it again."},
    {of(Fault::TemplateTruthExpected),
     u"Hier müsste #TRUE# oder #FALSE# stehen (%1), aber es steht „%2“ da. Die Vorlage ist beschädigt; nehmen Sie eine "
     u"andere Kopie oder speichern Sie sie neu.",
     u"#TRUE# or #FALSE# should stand here (%1), but there is “%2”. The template is damaged; use another copy of it or "
     u"save it again."},
    {of(Fault::TemplateNotSaved), u"Die Vorlage wurde nicht gespeichert: %1.", u"The template was not saved: %1."},
    {of(Fault::NoTemplateToReplace),
     u"Die Vorlage wurde nicht gespeichert: Die Datei ist schon vorhanden und keine Vorlage. Wählen Sie einen anderen "
     u"Namen.",
     u"The template was not saved: the file already exists and is not a template. Choose another name."},
    {of(Fault::TemplateNotUtf8),
     u"Die Vorlage ist beschädigt: Sie beginnt als UTF-8, enthält aber anderes. Nehmen Sie eine andere Kopie oder "
     u"speichern Sie sie neu.",
     u"The template is damaged: it begins as UTF-8 but contains something else. Use another copy of it or save it "
     u"again."},
    {of(Fault::TemplateFamilyMissing), u"Die Vorlage gehört zu einer Familiendatenbank, die nicht vorhanden ist: %1.",
     u"The template belongs to a family database that does not exist: %1."},
    {of(Fault::DriveUnknown),
     u"Für das Laufwerk ist kein Ordner bekannt; nennen Sie ihn in Kalvenor.ini, Abschnitt [Laufwerke].",
     u"No folder is known for its drive letter; name it in Kalvenor.ini, section [Laufwerke]."},
    {of(Fault::MarksNotPutBack), u"Einige Markierungen wurden geändert und konnten nicht zurückgenommen werden.",
     u"Some marks were changed and could not be put back."},
    {of(Fault::FormerNotReopened),
     u"Auch die vorige Datenbank konnte nicht wieder geöffnet werden. Beenden Sie das Programm und starten Sie es neu.",
     u"The previous database could not be reopened either. Quit the program and start it again."},
    // Words: the values of a template
    {of(Fault::WordFamily), u"Familiendatenbank", u"family database"},
    {of(Fault::WordTitle), u"Titel", u"title"},
    {of(Fault::WordIntroduction), u"Einleitung", u"introduction"},
    {of(Fault::WordChartType), u"Art der Grafik", u"type of the chart"},
    {of(Fault::WordLegend), u"Schalter der Legende", u"switch of the legend"},
    {of(Fault::WordSexes), u"Auswahl von Männern oder Frauen", u"choice of men or women"},
    {of(Fault::WordByBirth), u"Auswahl des Geburtsjahrs", u"choice of the year of birth"},
    {of(Fault::WordCounter), u"Nummer einer Person", u"number of a person"},
    // Databases
    {of(Fault::TableMissing), u"Es gibt keine Tabelle namens „%1“.", u"There is no table named “%1”."},
    {of(Fault::TableLinked), u"Die Tabelle „%1“ ist nicht in dieser Datei; sie ist mit %2 verknüpft.",
     u"Table “%1” is not in this file; it is linked to %2."},
    {of(Fault::FileMissing), u"Die Datei ist nicht da.", u"The file does not exist."},
    {of(Fault::StoppedUnmarked), u"Abgebrochen; niemand wurde markiert.", u"Stopped; nobody was marked."},
    {of(Fault::StoppedQuery), u"Die Abfrage wurde abgebrochen; nichts wurde geändert.",
     u"The query was stopped; nothing was changed."},
    {of(Fault::StoppedMarking), u"Das Setzen der Markierungen wurde abgebrochen.", u"Setting the marks was stopped."},
    // Databases that are read
    {of(Fault::NotRead), u"Die Datei kann nicht gelesen werden: %1.", u"The file cannot be read: %1."},
    {of(Fault::FileTooLarge), u"Für %1 MB reicht der Arbeitsspeicher nicht.", u"There is not enough memory for %1 MB."},
    {of(Fault::FileTooShort), u"Das ist keine Jet-3- oder Jet-4-Datenbank: Die Datei hat nur %1 Bytes.",
     u"This is not a Jet 3 or Jet 4 database: it has only %1 bytes."},
    {of(Fault::OtherKindOfFile),
     u"Das ist keine Jet-3- oder Jet-4-Datenbank: Die ersten Bytes sind die einer anderen Art von Datei.",
     u"This is not a Jet 3 or Jet 4 database: its first bytes are those of another kind of file."},
    {of(Fault::LargerThanJet),
     u"Das ist keine Jet-3- oder Jet-4-Datenbank: Die Datei ist größer als die 2 GiB, die eine solche haben kann.",
     u"This is not a Jet 3 or Jet 4 database: it is larger than the 2 GiB such a file can have."},
    {of(Fault::StillWritten),
     u"Ein anderes Programm schreibt fortwährend in die Datei. Versuchen Sie es noch einmal, wenn es fertig ist.",
     u"Another program keeps writing to the file. Try again when it has finished."},
    {of(Fault::NotDecoded), u"Die Datei ist verschlüsselt, und ihre Seiten können nicht entschlüsselt werden.",
     u"The file is encoded and its pages cannot be decoded."},
    {of(Fault::CatalogueDamaged), u"Dem Verzeichnis der Tabellen fehlt eine der Spalten Id, Name, Type und Flags.",
     u"The catalogue of tables lacks one of its columns Id, Name, Type and Flags."},
    {of(Fault::DefinitionDamaged),
     u"Die Definition der Tabelle ist beschädigt: %1. Reparieren Sie die Datenbank oder nehmen Sie eine "
     u"Sicherungskopie.",
     u"The definition of the table is damaged: %1. Repair the database or take a backup."},
    {of(Fault::UsageMapMissing),
     u"Die Seiten der Tabelle sind nicht zu finden: Ihre Belegungsliste fehlt (Seite %1, Zeile %2). Reparieren Sie die "
     u"Datenbank oder nehmen Sie eine Sicherungskopie.",
     u"The pages of the table cannot be found: its usage map is missing (page %1, row %2). Repair the database or take "
     u"a backup."},
    // Queries
    {of(Fault::DatabaseClosed), u"Die Datenbank wurde geschlossen.", u"The database was closed."},
    {of(Fault::RecordsetClosed), u"Die Datensatzgruppe wurde geschlossen.", u"The recordset was closed."},
    {of(Fault::NoRow), u"Es gibt keine aktuelle Zeile.", u"There is no current row."},
    {of(Fault::BehindLastRow), u"Hinter der letzten Zeile gibt es keine.", u"There is no row after the last one."},
    {of(Fault::NotATable), u"Nur eine Tabelle kann durchsucht und geändert werden.",
     u"Only a table recordset can be searched and changed."},
    {of(Fault::FieldMissing), u"Es gibt kein Feld %1.", u"There is no field %1."},
    {of(Fault::ColumnMissing), u"Es gibt keine Spalte namens „%1“.", u"There is no column named “%1”."},
    {of(Fault::IndexUnsuited), u"Der Index „%1“ geht nicht über eine einzige Spalte ganzer Zahlen.",
     u"The index “%1” is not over one column of whole numbers."},
    {of(Fault::IndexMissing), u"Es gibt keinen Index namens „%1“.", u"There is no index named “%1”."},
    {of(Fault::NoIndexChosen), u"Es ist kein Index gewählt, nach dem gesucht werden soll.",
     u"No index was chosen to seek by."},
    {of(Fault::NotInEdit), u"Die Zeile muss erst in den Bearbeitungszustand gebracht werden.",
     u"The row must be put into edit mode first."},
    {of(Fault::OnlyMark), u"Nur %1 kann geändert werden, nicht „%2“.", u"Only %1 can be changed, not “%2”."},
    {of(Fault::RowDeleted), u"Ein anderes Programm hat die Zeile gelöscht. Laden Sie die Liste neu.",
     u"Another program deleted the row. Reload the list."},
    {of(Fault::QueryRunning), u"Eine andere Abfrage dieser Datei läuft noch. Warten Sie ihr Ende ab.",
     u"Another query of this file is still running. Wait until it has finished."},
    {of(Fault::OneStatement), u"Nur eine Anweisung kann ausgeführt werden.", u"Only one statement can be carried out."},
    {of(Fault::SecondStatement), u"Nur eine Anweisung kann ausgeführt werden; eine zweite beginnt bei %1",
     u"Only one statement can be carried out; a second one begins at %1"},
    {of(Fault::EngineNotSetUp), u"Die Abfragemaschine kann nicht eingerichtet werden: %1.",
     u"The query engine cannot be set up: %1."},
    {of(Fault::TableNotQueried), u"Die Tabelle kann nicht abgefragt werden: %1.", u"The table cannot be queried: %1."},
    {of(Fault::NoSelect), u"Eine Abfrage muss mit SELECT beginnen.", u"A query must begin with SELECT."},
    {of(Fault::ResultTooLarge),
     u"Das Ergebnis ist zu groß, um sortiert oder berechnet zu werden. Wählen Sie weniger Zeilen oder Spalten.",
     u"The result is too large to be sorted or computed. Select fewer rows or columns."},
    {of(Fault::OnlyUpdate), u"Nur UPDATE … SET %1 wird ausgeführt.", u"Only UPDATE … SET %1 is carried out."},
    {of(Fault::StatementEmpty), u"Die Anweisung ist leer.", u"The statement is empty."},
    {of(Fault::NoComments), u"Die Zeichen %1%2 sind nicht zu verstehen; in einer Anweisung gibt es keine Kommentare.",
     u"The signs %1%2 are not understood; there are no comments in a statement."},
    {of(Fault::SignUnknown), u"Das Zeichen %1 ist nicht zu verstehen, bei %2", u"The sign %1 is not understood at %2"},
    {of(Fault::ControlCharacter), u"Die Anweisung enthält ein Steuerzeichen.",
     u"The statement contains a control character."},
    {of(Fault::NameNotClosed), u"Der Name, der bei %1 beginnt, ist nicht abgeschlossen.",
     u"The name that begins at %1 is not closed."},
    {of(Fault::SearchTextNotClosed),
     u"Der Suchtext, der bei %1 beginnt, ist nicht abgeschlossen. Schreiben Sie einen Apostroph innerhalb eines Textes "
     u"doppelt ('').",
     u"The search text that begins at %1 is not closed. Write an apostrophe within a text twice ('')."},
    {of(Fault::AceFormat),
     u"Das ist keine Jet-3- oder Jet-4-Datenbank: Sie hat das neuere ACE-Format (.accdb, Access 2007 und später, "
     u"Versionsbyte %1); speichern Sie sie im Format von Access 2000 oder 2002-2003.",
     u"This is not a Jet 3 or Jet 4 database: it is of the newer ACE format (.accdb, Access 2007 and later, version "
     u"byte %1); save it in the format of Access 2000 or 2002-2003."},
    {of(Fault::SqlColumn), u"Es gibt keine Spalte „%1“.", u"There is no column “%1”."},
    {of(Fault::SqlAmbiguous), u"Die Spalte „%1“ steht in mehr als einer Tabelle.",
     u"The column “%1” stands in more than one table."},
    {of(Fault::SqlSyntax), u"Die Anweisung ist bei „%1“ nicht zu verstehen.",
     u"The statement is not understood at “%1”."},
    {of(Fault::SqlTooShort), u"Die Anweisung endet zu früh.", u"The statement ends too early."},
    {of(Fault::SqlFunction), u"Es gibt keine Funktion „%1“.", u"There is no function “%1”."},
    {of(Fault::SqlFunctionValues), u"Die Funktion %1 hat zu viele oder zu wenige Werte.",
     u"The function %1 has too many or too few values."},
    {of(Fault::SqlFunctionPlace), u"Die Funktion %1 kann dort nicht stehen.", u"The function %1 cannot stand there."},
    {of(Fault::SqlTooDeep), u"Die Anweisung ist zu tief geschachtelt.", u"The statement is nested too deeply."},
    {of(Fault::SqlTooManyQueries), u"Die Anweisung verbindet zu viele Abfragen.",
     u"The statement combines too many queries."},
    {of(Fault::SqlTooLong), u"Die Anweisung oder ein Wert darin ist zu lang.",
     u"The statement or a value in it is too long."},
    {of(Fault::SqlOther), u"Die Anweisung ist nicht zu verstehen: %1.", u"The statement is not understood: %1."},
    {of(Fault::DoubleApostrophe), u"Schreiben Sie einen Apostroph innerhalb eines Textes doppelt ('').",
     u"Write an apostrophe within a text twice ('')."},
    {of(Fault::SqlPlace), u"Die Stelle beginnt mit: %1", u"The place begins with: %1"},
    {of(Fault::SqlStatement), u"Die Anweisung: %1", u"The statement: %1"},
    {of(Fault::OnlySelectAndUpdate), u"Nur SELECT und UPDATE … SET %1 werden ausgeführt.",
     u"Only SELECT and UPDATE … SET %1 are carried out."},
    {of(Fault::TableNotInFile), u"In der Datei gibt es keine Tabelle „%1“.", u"There is no table “%1” in the file."},
    {of(Fault::FunctionNotAvailable), u"Die Funktion „%1“ steht nicht zur Verfügung.",
     u"The function “%1” is not available."},
    {of(Fault::NoRecursion), u"Eine Abfrage, die sich selbst aufruft, wird nicht ausgeführt.",
     u"A query that calls itself is not carried out."},
    {of(Fault::PatternNotClosed),
     u"Das Namensmuster „%1“ ist nicht zu verwenden: Die Liste, die mit „[“ beginnt, hat kein „]“. Schließen Sie sie, "
     u"oder schreiben Sie [[] für das Zeichen selbst.",
     u"The name pattern “%1” cannot be used: the list that begins with “[” has no “]”. Close it, or write [[] for the "
     u"character itself."},
    {of(Fault::PatternBackwards),
     u"Das Namensmuster „%1“ ist nicht zu verwenden: Der Bereich %2-%3 läuft rückwärts. Schreiben Sie %3-%2.",
     u"The name pattern “%1” cannot be used: the range %2-%3 runs backwards. Write %3-%2."},
    {of(Fault::CharacterNotOrdered),
     u"Das Zeichen U+%1 in „%2“ hat keinen Platz in der allgemeinen Sortierfolge; ein Index kann es nicht aufnehmen. "
     u"Verwenden Sie dort nur lateinische Buchstaben.",
     u"The character U+%1 in “%2” has no place in the General sort order; an index cannot hold it. Use only Latin "
     u"letters there."},
    // Marks
    {of(Fault::ReadOnlyFile), u"Die Datei kann nicht geschrieben werden: Sie ist schreibgeschützt.",
     u"The file cannot be written: it is write-protected."},
    {of(Fault::ReadOnlyFolder), u"Die Datei kann nicht geschrieben werden: Ihr Ordner ist schreibgeschützt.",
     u"The file cannot be written: its folder is write-protected."},
    {of(Fault::NotOpenedForWriting), u"Die Datei kann nicht geschrieben werden: %1.",
     u"The file cannot be written: %1."},
    {of(Fault::FileGone), u"Die Datei ist nicht mehr da.", u"The file is no longer there."},
    {of(Fault::PageNotRead), u"Seite %1 kann nicht noch einmal gelesen werden: %2.",
     u"Page %1 cannot be read again: %2."},
    {of(Fault::PageNotWritten), u"Das Schreiben der Seite %1 ist fehlgeschlagen: %2.", u"Writing page %1 failed: %2."},
    {of(Fault::PageNotConfirmed), u"Seite %1 enthält nicht, was auf sie geschrieben wurde.",
     u"Page %1 does not contain what was written to it."},
    {of(Fault::NotSynced), u"Der Datenträger hat die Änderungen nicht bestätigt: %1.",
     u"The disk did not confirm the changes: %1."},
    {of(Fault::RowChanged),
     u"Ein anderes Programm hat die Datei geändert: Zeile %1 der Seite %2 ist nicht mehr dieselbe.",
     u"Another program has changed the file: row %1 of page %2 is no longer the same."},
    {of(Fault::FileChanged), u"Ein anderes Programm hat die Datei geändert, seit sie gelesen wurde.",
     u"Another program has changed the file since it was read."},
    {of(Fault::ChangedAgain),
     u"Ein anderes Programm hat die Datei immer wieder geändert, während sie geschrieben wurde. Versuchen Sie es noch "
     u"einmal, wenn das andere Programm fertig ist.",
     u"Another program kept changing the file while it was being written. Try again when the other program has "
     u"finished."},
    {of(Fault::NothingChanged), u"Nichts wurde geändert.", u"Nothing was changed."},
    {of(Fault::RowsChangedBefore), u"%1 Zeilen waren schon geändert.", u"%1 rows had already been changed."},
    {of(Fault::MarkColumnMissing), u"Der Tabelle fehlt die Spalte für Markierungen oder ihr Schlüssel.",
     u"The table lacks the column for marks or its key."},
    {of(Fault::TableOutdated), u"Die Tabelle gehört zu einem älteren Stand der Datei.",
     u"The table belongs to an older state of the file."},
    {of(Fault::RowMissing), u"Es gibt keine Zeile %1.", u"There is no row %1."},
    {of(Fault::NoYesNoColumn), u"Markierungen können nicht gesetzt werden: Spalte %1 ist keine Ja/Nein-Spalte.",
     u"Marks cannot be set: column %1 is not a Yes/No column."},
    {of(Fault::MarkIndexed),
     u"Markierungen können nicht gesetzt werden: Ein Index enthält die Spalte %1 und würde nicht mehr stimmen; "
     u"entfernen Sie ihn.",
     u"Marks cannot be set: an index contains column %1 and would no longer be right; remove the index."},
    {of(Fault::KeyNotLong),
     u"Markierungen können nicht gesetzt werden: Die Schlüsselspalte %1 enthält keine ganzen Zahlen (Long).",
     u"Marks cannot be set: the key column %1 does not hold whole numbers (Long)."},
    {of(Fault::MarkCalculated), u"Markierungen können nicht gesetzt werden: Spalte %1 wird berechnet.",
     u"Marks cannot be set: column %1 is calculated."},
    {of(Fault::RowWithoutKey), u"Markierungen können nicht gesetzt werden: Zeile %1 hat keinen Schlüssel.",
     u"Marks cannot be set: row %1 has no key."},
    {of(Fault::KeyRepeated), u"Markierungen können nicht gesetzt werden: Der Schlüssel %1 kommt mehr als einmal vor.",
     u"Marks cannot be set: the key %1 occurs more than once."},
    {of(Fault::RecordTooOld),
     u"Markierungen können nicht gesetzt werden: Der Datensatz mit dem Schlüssel %1 ist älter als die Spalte %2; "
     u"ändern und speichern Sie ihn einmal in dem Programm, aus dem er stammt.",
     u"Marks cannot be set: the record with key %1 is older than column %2; change and save it once in the program it "
     u"comes from."},
    {of(Fault::NoKeyColumn),
     u"Markierungen können nicht gesetzt werden: Die Tabelle hat keine Spalte %1, die ihre Zeilen unterscheidet.",
     u"Marks cannot be set: the table has no column %1 that tells its rows apart."},
    {of(Fault::RowNumbersHidden),
     u"Markierungen können nicht gesetzt werden: Ihre Spalten verdecken die Nummern der Zeilen.",
     u"Marks cannot be set: its columns hide the numbers of the rows."},
    {of(Fault::PageLocked),
     u"Ein anderes Programm hält Seite %1 der Datei seit über einer Sekunde gesperrt, weil es dort selbst schreibt. "
     "Versuchen Sie es gleich noch einmal.",
     u"Another program has kept page %1 of the file locked for more than a second, because it writes there itself. "
     "Try again in a moment."},
    // Words: what is damaged in the definition of a table
    {of(Fault::WordPageBeyondEnd), u"ihre Seite liegt hinter dem Ende der Datei",
     u"its page is beyond the end of the file"},
    {of(Fault::WordOtherPage), u"ihre Seite ist von anderer Art", u"its page is of another kind"},
    {of(Fault::WordPageCircle), u"ihre Seiten laufen im Kreis", u"its pages run in a circle"},
    {of(Fault::WordNoPage), u"sie nennt keine Seite", u"it names no page"},
    {of(Fault::WordLength), u"ihre angegebene Länge ist unmöglich", u"its stated length cannot be"},
    {of(Fault::WordCutShort), u"sie ist abgeschnitten", u"it is cut short"},
    {of(Fault::WordColumnCount), u"ihre Zahl der Spalten ist unmöglich", u"its number of columns cannot be"},
    {of(Fault::WordVariableColumns), u"ihre Zahl der Spalten veränderlicher Länge ist unmöglich",
     u"its number of variable columns cannot be"},
    {of(Fault::WordIndexCount), u"ihre Zahl der Indizes ist unmöglich", u"its number of indexes cannot be"},
    {of(Fault::WordHalfCharacter), u"ein Name hat ein halbes Zeichen", u"a name has half a character"},
    {of(Fault::WordNameTooLong), u"ein Name ist länger als die Definition", u"a name is longer than the definition"},
    {of(Fault::WordColumnsCut), u"ihre Spalten sind abgeschnitten", u"its columns are cut short"},
    {of(Fault::WordIndexColumn), u"ein Index nennt eine Spalte, die es nicht gibt",
     u"an index names a column that is not there"},
    {of(Fault::WordIndexesCut), u"ihre Indizes sind abgeschnitten", u"its indexes are cut short"},
    {of(Fault::WordIndexPages), u"ein Index hat keine Seiten", u"an index has no pages"},
};

} // namespace

std::span<const CatalogueText> faultTexts()
{
    return Texts;
}

} // namespace kalvenor::language
