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
     u"A text cannot be cut to the length %1."},
    {of(Fault::StartImpossible), u"Ein Text kann nicht ab der Stelle %1 genommen werden; die erste ist 1.",
     u"A text cannot be taken from the place %1; the first is 1."},
    {of(Fault::Misuse), u"Das Programm hat einen Fehler gemacht: %1", u"The program has made a mistake: %1"},
    {of(Fault::FileEnds), u"Die Datei endet hier, aber etwas fehlt noch.",
     u"The file ends here, but something is still missing."},
    {of(Fault::TextNotClosed),
     u"Der Text, der hier beginnt, hat kein schließendes Anführungszeichen; wahrscheinlich wurde die Datei "
     u"abgeschnitten.",
     u"The text that begins here has no closing quote; the file was probably cut."},
    {of(Fault::TextGoesOn),
     u"Hinter dem schließenden Anführungszeichen des Textes, der hier beginnt, steht noch etwas.",
     u"Something stands behind the closing quote of the text that begins here."},
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
     u"The chart was stopped; it was not computed."},
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
     u"The folder cannot be made. Choose a folder that you may write to."},
    // Pages, printing, charts, pictures
    {of(Fault::LineTooHigh),
     u"Eine Textzeile ist höher als die Seite zwischen ihren Rändern. Wählen Sie eine kleinere Schrift oder kleinere "
     u"Ränder.",
     u"A line of text is higher than the page between its margins. Choose a smaller font or smaller margins."},
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
     u"The printer does not take the pages. See whether it is switched on and connected."},
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
    {of(Fault::CopyNotDeleted),
     u"Die HTML-Seite konnte nicht fertiggestellt werden: Diese Datei kann nicht gelöscht werden.",
     u"The page could not be finished: this file cannot be deleted."},
    {of(Fault::WildcardInName), u"Der Dateiname darf kein * oder ? enthalten. Wählen Sie einen anderen.",
     u"The file name must not hold * or ?. Choose another one."},
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
    {of(Fault::PathNotAnsi),
     u"Die Einstellungsdatei des Hauptprogramms kann diesen Pfad nicht aufnehmen: Er hat Zeichen außerhalb von "
     u"Windows-1252. Wählen Sie einen anderen Ordner.",
     u"The host's settings file cannot hold this path: it has characters outside Windows-1252. Choose another folder."},
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
     u"There is a file of this name already. Choose another folder."},
    {of(Fault::FolderNotEmpty),
     u"Diesen Ordner gibt es schon, und er ist nicht leer. Nichts wurde geändert; wählen Sie einen anderen Ordner oder "
     u"entfernen Sie erst diesen.",
     u"This folder exists already and is not empty. Nothing was changed; choose another folder or remove this one "
     u"first."},
    // Templates
    {of(Fault::TemplateMissing), u"Die Vorlage kann nicht geöffnet werden: %1.", u"The template cannot be opened: %1."},
    {of(Fault::TemplateUnreadable), u"Die Vorlage kann nicht gelesen werden: %1.", u"The template cannot be read: %1."},
    {of(Fault::TemplateTooLarge), u"Das ist keine Vorlage: Die Datei ist %1 MB groß.",
     u"This is not a selection template: it is %1 MB large."},
    {of(Fault::TemplateCut),
     u"Die Datei endet mitten in dieser Zeile (%1); sie wurde abgeschnitten und kann nicht geöffnet werden. Nehmen Sie "
     u"eine andere Kopie der Vorlage oder speichern Sie sie neu.",
     u"The file ends in the middle of this line (%1); it was cut, and cannot be opened. Use another copy of the "
     u"template or save it again."},
    {of(Fault::NoTemplate),
     u"Das ist keine Vorlage: Die erste Zeile müsste der Pfad einer Familiendatenbank in doppelten Anführungszeichen "
     u"sein.",
     u"This is not a selection template: its first line must be the path of a family database in double quotes."},
    {of(Fault::TemplateTextExpected),
     u"Hier müsste ein Text in doppelten Anführungszeichen stehen (%1), aber es steht „%2“ da. Die Vorlage ist "
     u"beschädigt; nehmen Sie eine andere Kopie oder speichern Sie sie neu.",
     u"Here should be a text in double quotes (%1), but there is “%2”. The template is damaged; use another copy of it "
     u"or save it again."},
    {of(Fault::TemplateNumberExpected),
     u"Hier müsste eine Zahl von %2 bis %3 stehen (%1), aber es steht „%4“ da. Die Vorlage ist beschädigt; nehmen Sie "
     u"eine andere Kopie oder speichern Sie sie neu.",
     u"Here should be a number from %2 to %3 (%1), but there is “%4”. The template is damaged; use another copy of it "
     u"or save it again."},
    {of(Fault::TemplateTruthExpected),
     u"Hier müsste #TRUE# oder #FALSE# stehen (%1), aber es steht „%2“ da. Die Vorlage ist beschädigt; nehmen Sie eine "
     u"andere Kopie oder speichern Sie sie neu.",
     u"Here should be #TRUE# or #FALSE# (%1), but there is “%2”. The template is damaged; use another copy of it or "
     u"save it again."},
    {of(Fault::TemplateCharacters),
     u"Die Vorlage wurde nicht gespeichert: Sie kann diese Zeichen nicht aufnehmen (%1): %2.",
     u"The template was not saved: it cannot keep these characters (%1): %2."},
    {of(Fault::TemplateNotSaved), u"Die Vorlage wurde nicht gespeichert: %1.", u"The template was not saved: %1."},
    {of(Fault::TemplateFamilyMissing), u"Die Vorlage gehört zu einer Familiendatenbank, die nicht vorhanden ist: %1.",
     u"The template belongs to a family database that does not exist: %1."},
    {of(Fault::DriveUnknown),
     u"Für das Laufwerk ist kein Ordner bekannt; nennen Sie ihn in Kalvenor.ini, Abschnitt [Laufwerke].",
     u"No folder is known for its drive letter; name it in Kalvenor.ini, section [Laufwerke]."},
    {of(Fault::MarksNotPutBack), u"Einige Markierungen wurden geändert und konnten nicht zurückgenommen werden.",
     u"Some marks were changed and could not be put back."},
    {of(Fault::RenameFamily), u"Benennen Sie die Datenbank oder ihren Ordner um.",
     u"Rename the database or its folder."},
    {of(Fault::ChangeTitle), u"Ändern Sie den Titel.", u"Change the title."},
    {of(Fault::FormerNotReopened),
     u"Auch die vorige Datenbank konnte nicht wieder geöffnet werden. Beenden Sie das Programm und starten Sie es neu.",
     u"The former database could not be opened again either. Quit the program and start it again."},
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
    {of(Fault::FileMissing), u"Die Datei ist nicht da.", u"The file is not there."},
};

} // namespace

std::span<const CatalogueText> faultTexts()
{
    return Texts;
}

} // namespace kalvenor::language
