// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

#include "platform/basic/fault.h"

namespace kalvenor::language {

namespace {

constexpr Text of(basic::Fault fault)
{
    return static_cast<Text>(fault);
}

using basic::Fault;

constexpr CatalogueText Texts[] = {
    // Persons left out
    {Text::ChangedMeanwhile, u"Ein anderes Programm hat die Familiendatenbank inzwischen geändert.",
     u"Another program has changed the family database meanwhile."},
    {Text::LeftTooOld,
     u"%1 Personen behalten ihre Markierung, weil ihr Datensatz älter ist als das Feld dafür. Ändern und speichern Sie "
     "sie einmal im Hauptprogramm: %2",
     u"%1 persons keep their mark, because their record is older than the field for it. Change and save them once in "
     "the main program: %2"},
    {Text::LeftRepeated,
     u"%1 Personen behalten ihre Markierung, weil ihre Nummer in der Datenbank mehr als einmal vorkommt: %2",
     u"%1 persons keep their mark, because their number occurs more than once in the database: %2"},
    {Text::LeftUnnumbered, u"%1 Personen behalten ihre Markierung, weil sie keine Nummer haben. %2",
     u"%1 persons keep their mark, because they have no number. %2"},
    {Text::AndMore, u"und %1 weitere", u"and %1 more"},
    // Damage
    {Text::DamagedResult,
     u"Die Datenbanken sind beschädigt (%1 Stellen). Was nicht lesbar ist, fehlt im Ergebnis. %2 – Mehr sagt: kalvenor "
     "check",
     u"The databases are damaged (%1 places). What cannot be read is missing in the result. %2 – For more: kalvenor "
     "check"},
    {Text::DamageTimes, u"%1 Stellen dieser Art, zuerst: %2", u"%1 places of this kind, first: %2"},
    {of(Fault::FileCutShort),
     u"Die Datei ist unvollständig: Am Ende fehlen mindestens %1 Seiten (%2 Bytes). Nehmen Sie eine vollständige "
     u"Kopie, "
     "oder lassen Sie das Hauptprogramm sie reparieren.",
     u"The file is incomplete: at least %1 pages (%2 bytes) are missing at its end. Take a complete copy, or let the "
     "main program repair it."},
    {of(Fault::IncompleteNotMarked),
     u"In eine unvollständige Datei wird keine Markierung geschrieben: Am Ende fehlen mindestens %1 Seiten (%2 Bytes). "
     "Nehmen Sie eine vollständige Kopie, oder lassen Sie das Hauptprogramm sie reparieren.",
     u"No mark is written into an incomplete file: at least %1 pages (%2 bytes) are missing at its end. Take a "
     u"complete "
     "copy, or let the main program repair it."},
    {of(Fault::PartialPage), u"Die letzten %1 Bytes sind keine ganze Seite.", u"The last %1 bytes are no whole page."},
    {of(Fault::TableWithoutPage), u"Tabelle %1 ist ausgelassen: Das Verzeichnis nennt keine Seite für sie.",
     u"Table %1 is left out: the catalogue names no page for it."},
    {of(Fault::TableTwice), u"Tabelle %1 steht zweimal im Verzeichnis; die erste zählt.",
     u"Table %1 is in the catalogue twice; the first counts."},
    {of(Fault::TablePageTaken), u"Tabelle %1 ist ausgelassen: Ihre Seite ist die der Tabelle %2.",
     u"Table %1 is left out: its page is that of table %2."},
    {of(Fault::RowsMissing), u"Von %2 Zeilen sind nur %1 da.", u"Only %1 of %2 rows are there."},
    {of(Fault::TooManyRows), u"Die Seite nennt %1 Zeilen, mehr als sie haben kann.",
     u"The page states %1 rows, more than it can have."},
    {of(Fault::RowsWithoutPlace), u"Zeile %1 und die hinter ihr haben keinen Platz.",
     u"Row %1 and those behind it have no place."},
    {of(Fault::RowLeftOut), u"Zeile %1 ist ausgelassen: %2.", u"Row %1 is left out: %2."},
    {of(Fault::FieldBeyondRow), u"Zeile %1 hat keinen Platz für ihre Spalte %2.",
     u"Row %1 has no room for its column %2."},
    {of(Fault::ValueSize), u"Zeile %1, Spalte %2: Der Wert hat %3 Bytes statt %4.",
     u"Row %1, column %2: the value has %3 bytes instead of %4."},
    {of(Fault::LongValueDamaged), u"Zeile %1, Spalte %2: %3.", u"Row %1, column %2: %3."},
    {of(Fault::LongValuesShared),
     u"Die langen Werte der Spalte %1 ergäben zusammen mehr als die ganze Datei, weil mehrere Zeilen auf dieselbe "
     u"Stelle "
     "zeigen. So eine Datei schreibt kein Programm; sie wird nicht gelesen.",
     u"The long values of column %1 would add up to more than the whole file, because several rows point to the same "
     "place. No program writes such a file; it is not read."},
    {of(Fault::TypeUnknown), u"Spalte %1 ist von der unbekannten Art %2.", u"Column %1 is of the unknown type %2."},
    {of(Fault::ColumnTwice), u"Spalte %1 (Nummer %2) ist zweimal da; die erste zählt.",
     u"Column %1 (number %2) is there twice; the first counts."},
    // Words
    {of(Fault::WordMovedAway), u"sie ist verschoben, aber nicht zu einer Zeile dieser Tabelle",
     u"it was moved, but not to a row of this table"},
    {of(Fault::WordRecordTaken), u"ihr Datensatz gehört schon einer anderen Zeile",
     u"its record is that of another row already"},
    {of(Fault::WordUnknownFlag), u"ihr Eintrag hat ein unbekanntes Kennzeichen", u"its slot has an unknown flag"},
    {of(Fault::WordOffsets), u"ihre Zahlen und Abstände passen nicht zusammen",
     u"its counts and offsets do not fit together"},
    {of(Fault::WordLongPartMissing), u"ein Teil des langen Werts fehlt", u"a part of the long value is not there"},
    {of(Fault::WordLongTooShort), u"der lange Wert endet vor der angegebenen Länge",
     u"the long value ends before its stated length"},
    {of(Fault::WordLongCircle), u"die Teile des langen Werts laufen im Kreis",
     u"the parts of the long value run in a circle"},
    {of(Fault::WordLongHead), u"der Kopf des langen Werts ist zu kurz", u"the head of the long value is too short"},
    {of(Fault::WordLongKind), u"der lange Wert ist von unbekannter Art", u"the long value is of an unknown kind"},
    // The check of an installation: the first word of a line, padded
    {Text::CheckOk, u"gut", u"ok"},
    {Text::CheckNote, u"Hinweis", u"note"},
    {Text::CheckMissing, u"fehlt", u"missing"},
    {Text::CheckDamaged, u"beschädigt", u"damaged"},
    {Text::CheckLocked, u"gesperrt", u"locked"},
    {Text::CheckProgramFolder, u"%1: Programmordner, beschreibbar", u"%1: program folder, writable"},
    {Text::CheckNoProgramFolder, u"%1: Der Programmordner ist nicht da", u"%1: the program's folder is not there"},
    {Text::CheckProgramFolderReadOnly,
     u"%1: Der Programmordner ist schreibgeschützt; Druckeinstellungen können dort nicht bleiben",
     u"%1: the program's folder is read-only; print settings cannot be kept in it"},
    {Text::CheckSettings, u"%1: Einstellungen des Hauptprogramms, Sprache „%2“",
     u"%1: settings of the main program, language “%2”"},
    {Text::CheckNoSettings,
     u"%1: Die Einstellungen des Hauptprogramms sind nicht da; darum ist keine Familiendatenbank bekannt",
     u"%1: the main program's settings file is not there, so no family database is known"},
    {Text::CheckOutputFolder, u"%1: Ausgabeordner, beschreibbar", u"%1: output folder, writable"},
    {Text::CheckNoOutputFolder, u"%1: Der Ausgabeordner ist nicht da", u"%1: the output folder is not there"},
    {Text::CheckOutputFolderReadOnly, u"%1: Der Ausgabeordner ist schreibgeschützt",
     u"%1: the output folder is read-only"},
    {Text::CheckColumnMissing, u"%1: Die Spalte „%2“ ist nicht da", u"%1: there is no column “%2”"},
    {Text::CheckColumnUnusable, u"%1: Die Spalte „%2“ ist von einer Art, die nicht brauchbar ist",
     u"%1: the column “%2” has a type that cannot be used"},
    {Text::CheckIndexMissing, u"%1: Der Index „Counter“ ist nicht da", u"%1: there is no index “Counter”"},
    {Text::CheckTexts, u"%1: %2 Texte", u"%1: %2 texts"},
    {Text::CheckNoFamilyNamed,
     u"%1: Keine Familiendatenbank ist genannt (Abschnitt QV-Files, Schlüssel 0); öffnen Sie eine im Hauptprogramm",
     u"%1: no family database is named (section QV-Files, key 0); open one in the main program"},
    {Text::CheckOpenElsewhere,
     u"%1: Die Familiendatenbank ist in einem anderen Programm offen oder wurde nicht ordentlich geschlossen",
     u"%1: the family database is open in another program, or was not closed cleanly"},
    {Text::CheckReadable, u"%1: lesbar", u"%1: readable"},
    {Text::CheckTableThere, u"%1: ihre Tabelle ist da", u"%1: its table is there"},
    {Text::CheckTablesThere, u"%1: alle %2 Tabellen sind da", u"%1: all %2 tables are there"},
    {Text::CheckCounterRepeated,
     u"%1: %2 Personen haben einen Counter, den schon eine andere hat, und können nicht markiert werden: %3",
     u"%1: %2 persons have a Counter that another one has already, and cannot be marked: %3"},
    {Text::CheckNoCounter, u"%1: %2 Personen haben keinen Counter", u"%1: %2 persons have no Counter"},
    {Text::CheckTooOld,
     u"%1: %2 Personen sind älter als die Spalte „Markierung“ und können erst markiert werden, wenn das Hauptprogramm "
     "sie neu gespeichert hat: %3",
     u"%1: %2 persons are older than the column “Markierung” and cannot be marked until the main program saves them "
     "again: %3"},
    {Text::CheckPersons, u"%1: %2 Personen, davon %3 markiert", u"%1: %2 persons, %3 of them marked"},
    {Text::CheckWritable, u"%1: beschreibbar, Personen können markiert werden", u"%1: writable, persons can be marked"},
};

} // namespace

std::span<const CatalogueText> damageTexts()
{
    return Texts;
}

} // namespace kalvenor::language
