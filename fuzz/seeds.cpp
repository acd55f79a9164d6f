// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// fuzz_seeds DIR: what the targets begin with, a folder each. Small, so that a second holds many tries.
#include "language/texts/catalogue.h"
#include "platform/jet/creator/creator.h"
#include "platform/jet/jet3fixture.h"
#include "platform/richtext/rtfwriter.h"
#include "selection/templates/vorlage.h"
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
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

/// Every type of column, long values in their three kinds, an index.
void writeDatabase(const QString &path, std::uint32_t encodingKey)
{
    using jet::ColumnType;
    jet::Creator creator;
    auto &table = creator.addTable(u"Daten"_s,
                                   {{.name = u"Counter"_s},
                                    {.name = u"Listname"_s, .type = ColumnType::Text},
                                    {.name = u"Markierung"_s, .type = ColumnType::Boolean},
                                    {.name = u"Bemerkung"_s, .type = ColumnType::Memo},
                                    {.name = u"Bild"_s, .type = ColumnType::Ole},
                                    {.name = u"Breite"_s, .type = ColumnType::Double},
                                    {.name = u"Preis"_s, .type = ColumnType::Money},
                                    {.name = u"Zahl"_s, .type = ColumnType::Numeric, .scale = 3},
                                    {.name = u"Kurz"_s, .type = ColumnType::Integer},
                                    {.name = u"Kennung"_s, .type = ColumnType::Guid}},
                                   {{.name = u"Counter"_s, .columns = {u"Counter"_s}, .primary = true}});
    for (int row = 1; row <= 6; ++row)
        table.addRow({row, u"Weiß, Eva %1"_s.arg(row), row % 2 == 0, QString(row * 70, u'ß'),
                      QByteArray(row * 900, 'x'), row / 3.0, u"-12.5"_s, u"1.125"_s, row, QByteArray(16, '\7')});
    creator.write(path, encodingKey);
}

void writeJet3(const QString &path)
{
    testing::Jet3File file(1252);
    for (int row = 1; row <= 6; ++row)
        file.addRow({row, row % 2 == 0, QByteArray(row * 50, 'n'), "Ort"});
    write(path,
          QByteArray(reinterpret_cast<const char *>(file.bytes().data()), static_cast<qsizetype>(file.bytes().size())));
}

void writeTexts(const QString &path)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Languages"_s,
                                   {{.name = u"Counter"_s},
                                    {.name = u"Deutsch"_s, .type = jet::ColumnType::Text},
                                    {.name = u"English"_s, .type = jet::ColumnType::Text}},
                                   {{.name = u"Counter"_s, .columns = {u"Counter"_s}}});
    const auto texts = language::catalogue();
    for (std::size_t i = 0; i < texts.size(); i += 40)
        table.addRow({static_cast<std::int32_t>(texts[i].id), QString::fromUtf16(texts[i].deutsch) + u"#PROGNAME# %1"_s,
                      QString::fromUtf16(texts[i].english)});
    creator.write(path);
}

QByteArray richText()
{
    QTextDocument text;
    text.setHtml(u"<p align=center style='color:#ff0000;background:#00ff00'><b>A</b><i>b</i><u>c</u>{€Ω😀}<br>\\fs9</p>"
                 "<ul><li>eins<ul><li>zwei</ul></ul>"_s);
    return richtext::writeRtf(text);
}

void writePictures(const QString &folder)
{
    QImage picture(5, 3, QImage::Format_ARGB32);
    picture.fill(0x80ff4020);
    for (const char *format : {"BMP", "PNG", "JPG", "ICO"}) {
        QBuffer buffer;
        if (!picture.save(&buffer, format))
            qFatal("no %s can be written", format);
        write(folder + QLatin1String(format), buffer.data());
        write(folder + u"object-"_s + QLatin1String(format), QByteArray(20, '\x15') + "Paint\0" + buffer.data());
    }
    write(folder + u"GIF"_s,
          QByteArray::fromHex("47494638396101000100800000ff0000ffffff2c00000000010001000002024401003b"));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    const QDir top(QCoreApplication::arguments().value(1));
    for (const char *target : {"bild", "html", "jet", "marks", "profile", "rtf", "sprache", "sql", "vorlage"})
        top.mkpath(QLatin1String(target));

    for (const QString &target : {u"jet/"_s, u"marks/"_s}) {
        writeDatabase(top.filePath(target + u"plain"_s), 0);
        writeDatabase(top.filePath(target + u"encoded"_s), 0x12345678);
        writeJet3(top.filePath(target + u"jet3"_s));
    }
    writeTexts(top.filePath(u"sprache/texts"_s));
    writePictures(top.filePath(u"bild/"_s));
    write(top.filePath(u"html/page"_s), "<p>&lt;a href=./1-D.html&gt;Eva&lt;/a&gt;</p>\r\n&amp;lt;\n\r\n&lt");
    write(top.filePath(u"rtf/classic"_s), richText());
    write(top.filePath(u"rtf/table"_s), R"({\rtf1\mac\uc2{\*\x}\trowd\cell\row\u8364??{\pict\bin3 }}}{\footnote a}})");
    write(top.filePath(u"profile/bytes"_s), "[Grafik]\r\nGrafiktyp=3\r\nLegende=\"1\"\r\n; ende\r\n[Sp\xE4t]\r\na");
    write(top.filePath(u"profile/wide"_s), QByteArray("\xFF\xFE[\0G\0]\0\r\0\n\0a\0=\0", 16));
    selection::Vorlage vorlage;
    vorlage.familienpfad = basic::WindowsPath(u"C:\\QV\\Familie.mdb"_s);
    vorlage.statistik.titel = u"Die \"Müllers\""_s;
    vorlage.statistik.rtf = richText();
    vorlage.counters = {1, -7, 2000};
    selection::writeVorlage(basic::NativePath(top.filePath(u"vorlage/whole"_s)), vorlage);
    int number = 0;
    for (const char *statement :
         {"*[a-e]?", "x' OR Counter = 1 OR Listname = '", "SELECT Counter, * FROM [Daten] WHERE Listname LIKE 'W*#'",
          "SELECT DISTINCT a.Listname FROM Daten AS a, Daten ORDER BY 1 DESC",
          "UPDATE Daten SET Markierung = True WHERE Geburtsdatum > -9000AND Counter < 3 ;",
          "UPDATE Daten SET Listname = 'x'", "DELETE FROM Daten", "SELECT Count(*) FROM sqlite_master UNION SELECT 1"})
        write(top.filePath(u"sql/%1"_s.arg(++number)), statement);
}
