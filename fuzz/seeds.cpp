// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// fuzz_seeds DIR: what the targets begin with, a folder each.
#include "platform/jet/creator/creator.h"
#include "platform/richtext/rtfwriter.h"
#include "selection/templates/vorlage.h"
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextDocument>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

void writeDatabase(const QString &path, std::uint32_t encodingKey)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Daten"_s,
                                   {{.name = u"Counter"_s},
                                    {.name = u"Listname"_s, .type = jet::ColumnType::Text},
                                    {.name = u"Markierung"_s, .type = jet::ColumnType::Boolean},
                                    {.name = u"Bemerkung"_s, .type = jet::ColumnType::Memo},
                                    {.name = u"Breite"_s, .type = jet::ColumnType::Double},
                                    {.name = u"Bild"_s, .type = jet::ColumnType::Ole}},
                                   {{.name = u"Counter"_s, .columns = {u"Counter"_s}, .primary = true}});
    for (int row = 1; row <= 40; ++row)
        table.addRow({row, u"Weiß, Eva %1"_s.arg(row), row % 2 == 0, QString(row * 70, u'ß'), row / 3.0,
                      QByteArray(row * 150, 'x')});
    creator.write(path, encodingKey);
}

QByteArray richText()
{
    QTextDocument text;
    text.setHtml(u"<p align=center style='color:#ff0000;background:#00ff00'><b>A</b><i>b</i><u>c</u>{€Ω😀}<br>\\fs9</p>"
                 "<ul><li>eins<ul><li>zwei</ul></ul>"_s);
    return richtext::writeRtf(text);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    const QDir top(QCoreApplication::arguments().value(1));
    for (const QString &target : {u"jet"_s, u"rtf"_s, u"profile"_s, u"vorlage"_s, u"sql"_s})
        top.mkpath(target);

    writeDatabase(top.filePath(u"jet/plain"_s), 0);
    writeDatabase(top.filePath(u"jet/encoded"_s), 0x12345678);
    write(top.filePath(u"rtf/classic"_s), richText());
    write(top.filePath(u"rtf/table"_s), R"({\rtf1\mac\uc2{\*\x}\trowd\cell\row\u8364??{\pict\bin3 }}}{\footnote a}})");
    write(top.filePath(u"profile/bytes"_s), "[Grafik]\r\nGrafiktyp=3\r\nLegende=\"1\"\r\n; ende\r\n[Sp\xE4t]\r\na");
    write(top.filePath(u"profile/wide"_s), QByteArray("\xFF\xFE[\0G\0]\0\r\0\n\0a\0=\0", 16));
    selection::Vorlage vorlage;
    vorlage.familienpfad = u"C:\\QV\\Familie.mdb"_s;
    vorlage.statistik.titel = u"Die \"Müllers\""_s;
    vorlage.statistik.rtf = richText();
    vorlage.counters = {1, -7, 2000};
    selection::writeVorlage(top.filePath(u"vorlage/whole"_s), vorlage);
    int number = 0;
    for (const char *statement :
         {"*[a-e]?", "x' OR Counter = 1 OR Listname = '", "SELECT Counter, * FROM [Daten] WHERE Listname LIKE 'W*#'",
          "SELECT DISTINCT a.Listname FROM Daten AS a, Daten ORDER BY 1 DESC",
          "UPDATE Daten SET Markierung = True WHERE Geburtsdatum > -9000AND Counter < 3 ;",
          "UPDATE Daten SET Listname = 'x'", "DELETE FROM Daten", "SELECT Count(*) FROM sqlite_master UNION SELECT 1"})
        write(top.filePath(u"sql/%1"_s.arg(++number)), statement);
}
