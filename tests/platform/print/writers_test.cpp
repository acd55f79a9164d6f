// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "../../support/columns.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/pdfwriter.h"
#include "platform/print/rtffile.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

const QRegularExpression PageTwo(u"- ?2 ?-"_s);

/// One document with all kinds of blocks, and what readers of the files find in it.
class Writers : public testing::Test {
protected:
    void SetUp() override
    {
        PrintDocument &d = m_document;
        const StyleId bold = d.addStyle({.family = u"Times New Roman"_s, .pointSize = 14, .bold = true});
        const StyleId mark = d.addStyle({.underline = true, .color = Qt::red, .background = Qt::yellow});
        d.title = u"Altersliste der Familie Müller & <Söhne>"_s;
        d.header = {u"Kopf|Mitte|- %d -"_s, mark};
        d.footer = {u"Fuß|Seite %d|"_s};
        d.add(Paragraph{.text = u"Größe"_s, .style = bold, .keepWithNext = true, .outlineLevel = 1});
        d.add(RichParagraph{.runs = {{u"Zuerst "_s, 0},
                                     {u"fett"_s, bold},
                                     {u" \"{a}\\b <i> & 3 > 2\" "_s, mark},
                                     {u"dann\nZeile"_s, 0}},
                            .alignment = Alignment::Justified});
        d.add(RichParagraph{.runs = {{u"Punkt"_s, 0}}, .leftIndent = 300, .hanging = 300, .bullet = {u"–"_s, 0}});
        d.add(Paragraph{.text = u"Bild"_s, .keepWithNext = true, .outlineLevel = 2});
        QImage image(20, 10, QImage::Format_ARGB32);
        image.fill(Qt::green);
        d.add(Picture{.image = image, .width = 2000, .height = 1000, .alternativeText = u"Das \"Bild\""_s});
        d.add(TableStart{test::columns(u"<5000|^1200|0"), {{{u"Name"_s, mark}, {u"Alter"_s, bold}}}, 20});
        d.add(TableRow{{{u"Łódź, Ελένη 𝔘"_s}, {u"77 J."_s, mark}, {u"€ – “x”"_s, 0, Alignment::Right}}});
        d.add(PageBreak{});
        d.add(TableRow{{{u"Letzte"_s, bold, {}, 1}}});
        d.add(Paragraph{.text = u"Schluss"_s, .alignment = Alignment::Centre, .spaceBefore = 200});
    }

    /// Each of these behind the one before it; blanks and line ends count alike.
    static void expectTexts(const QString &text)
    {
        const QString plain = text.simplified();
        qsizetype place = 0;
        for (const char16_t *part :
             {u"Größe", u"Zuerst fett \"{a}\\b <i> & 3 > 2\" dann Zeile", u"Punkt", u"Bild", u"Name", u"Alter",
              u"Łódź, Ελένη", u"77 J.", u"€ – “x”", u"Name", u"Alter", u"Letzte", u"Schluss"}) {
            const QString wanted = QString::fromUtf16(part);
            const qsizetype found = plain.indexOf(wanted, place);
            ASSERT_GE(found, 0) << qPrintable(wanted) << " in " << qPrintable(plain);
            place = found + wanted.size();
        }
    }

    QString path(const QString &end) const { return m_folder.filePath(u"out."_s + end); }

    QByteArray bytes(const QString &end) const { return test::contentOf(path(end)); }

    /// What a tool prints; nothing where it is not installed.
    static std::optional<QString> output(const QString &tool, const QStringList &arguments)
    {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            return {};
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished(120'000)) << qPrintable(tool);
        const QByteArray complaints = process.readAllStandardError();
        EXPECT_EQ(process.exitCode(), 0) << complaints.constData();
        EXPECT_FALSE(complaints.contains("Error")) << complaints.constData();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    PrintDocument m_document;
    QTemporaryDir m_folder;
};

TEST_F(Writers, PdfIsReadByOthers)
{
    for (const PdfKind kind : {PdfKind::Plain, PdfKind::Archive}) {
        const bool isArchive = kind == PdfKind::Archive;
        m_document.page.landscape = isArchive;
        m_document.language = isArchive ? u"en"_s : u"de"_s;
        writePdf(PageLayout(m_document), m_document.title, path(u"pdf"_s), {}, kind);
        const auto info = output(u"pdfinfo"_s, {path(u"pdf"_s)});
        const auto text = output(u"pdftotext"_s, {u"-raw"_s, path(u"pdf"_s), u"-"_s});
        const auto fonts = output(u"pdffonts"_s, {path(u"pdf"_s)});
        const auto pictures = output(u"pdfimages"_s, {u"-list"_s, path(u"pdf"_s)});
        const auto outline = output(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-stdout"_s, path(u"pdf"_s)});
        if (!info || !text || !fonts || !pictures || !outline)
            GTEST_SKIP() << "pdftotext is missing (apt-get install poppler-utils)";
        EXPECT_TRUE(info->contains(m_document.title)) << qPrintable(*info);
        EXPECT_TRUE(info->contains(isArchive ? u"842 x 595 pts (A4)" : u"595 x 842 pts (A4)")) << qPrintable(*info);
        EXPECT_FALSE(info->contains(u"Author:"));
        expectTexts(*text);
        EXPECT_TRUE(text->contains(PageTwo));
        // Columns behind the encoding: embedded, subset, with a map to Unicode.
        static const QRegularExpression embedded(u"(?m)Identity-H +yes +(yes|no) +yes "_s);
        EXPECT_EQ(fonts->count(embedded), fonts->count(u"Identity-H")) << qPrintable(*fonts);
        EXPECT_TRUE(pictures->contains(u"image")) << qPrintable(*pictures);
        EXPECT_FALSE(pictures->contains(u"smask")) << "PDF/A-1 has no transparency";
        const QString items = outline->mid(outline->indexOf(u"<outline>")).remove(u'\n');
        EXPECT_TRUE(items.startsWith(u"<outline><item page=\"1\">Größe</item><outline><item page=\"1\">Bild</item>"
                                     "</outline><item page=\"2\">Letzte</item></outline>"_s))
            << qPrintable(items);
        const QByteArray file = bytes(u"pdf"_s);
        EXPECT_TRUE(file.contains("/Lang (" + m_document.language.toLatin1() + ")"));
        EXPECT_EQ(file.contains("pdfaid:conformance=\"B\""), isArchive);
    }
}

TEST_F(Writers, RtfIsReadByOthers)
{
    m_document.page.landscape = true;
    writeRtfFile(m_document, path(u"rtf"_s));
    const QByteArray file = bytes(u"rtf"_s);
    int depth = 0;
    for (qsizetype i = 0; i < file.size(); ++i) {
        ASSERT_LT(static_cast<unsigned char>(file[i]), 0x80) << "seven bits";
        if (file[i] == '\\')
            ++i;
        else
            depth += file[i] == '{' ? 1 : file[i] == '}' ? -1 : 0;
    }
    EXPECT_EQ(depth, 0);
    for (const char *part :
         {"\\paperw16838\\paperh11906\\margl1440", "\\landscape", "- \\chpgn  -", "\\'80 \\'96 \\'93x\\'94",
          "\\u321?\\'f3d\\u378?", "\\u-10187?\\u-8936?", "\\trhdr", "\\pngblip\\picw20\\pich10", "\\pagebb",
          "\\s1\\outlinelevel0\\ql\\keepn", "\\cellx4930", "\\keepn"})
        EXPECT_TRUE(file.contains(part)) << part;
    EXPECT_EQ(file.count("\\trhdr"), 2) << "again behind the page break";
    if (QStandardPaths::findExecutable(u"soffice"_s).isEmpty())
        GTEST_SKIP() << "soffice is missing (apt-get install libreoffice-writer-nogui)";
    output(u"soffice"_s,
           {u"-env:UserInstallation=file://"_s + m_folder.filePath(u"office"_s), u"--headless"_s, u"--convert-to"_s,
            u"pdf:writer_pdf_Export"_s, u"--outdir"_s, m_folder.path(), path(u"rtf"_s)});
    const auto text = output(u"pdftotext"_s, {u"-raw"_s, path(u"pdf"_s), u"-"_s});
    const auto info = output(u"pdfinfo"_s, {path(u"pdf"_s)});
    ASSERT_TRUE(text && info);
    expectTexts(*text);
    EXPECT_TRUE(text->contains(u"Kopf") && text->contains(PageTwo) && text->contains(u"Seite 2"));
    EXPECT_TRUE(info->contains(u"Pages:           2") && info->contains(m_document.title)) << qPrintable(*info);
    EXPECT_TRUE(info->contains(u"841.89 x 595.3")) << qPrintable(*info);
}

TEST_F(Writers, HtmlIsSoundAndSurvivesItsTagsComingToLife)
{
    m_document.language = u"en"_s;
    m_document.add(
        Picture{.image = QImage(2, 2, QImage::Format_RGB32), .width = 9, .height = 9, .fileName = u"a.jpg"_s});
    writeHtmlFile(m_document, path(u"html"_s));
    QByteArray file = bytes(u"html"_s);
    QXmlStreamReader xml(file);
    QString text;
    QStringList tags;
    bool isBody = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            tags << xml.name().toString();
            isBody = isBody || xml.name() == u"main";
            if (xml.name() == u"html") {
                EXPECT_EQ(xml.attributes().value(u"lang"_s), u"en");
            } else if (xml.name() == u"img") {
                EXPECT_EQ(xml.attributes().value(u"alt"_s), u"Das \"Bild\"");
            } else if (xml.name() == u"title") {
                EXPECT_EQ(xml.readElementText(), m_document.title);
            } else if (xml.name() == u"br") {
                text += u'\n';
            }
        } else if (isBody && xml.isCharacters()) {
            text += xml.text();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    expectTexts(text);
    const std::pair<const char16_t *, int> counts[] = {{u"style", 1}, {u"h1", 2},  {u"h2", 1},
                                                       {u"ul", 1},    {u"img", 1}, {u"table", 2},
                                                       {u"th", 6},    {u"td", 6},  {u"header", 1}};
    for (const auto &[tag, count] : counts)
        EXPECT_EQ(tags.count(QString::fromUtf16(tag)), count) << qPrintable(QString::fromUtf16(tag));
    EXPECT_FALSE(file.contains('\r'));
    EXPECT_TRUE(file.contains("content:'- ' counter(page) ' -'"));
    EXPECT_TRUE(file.contains("\"{a}\\b &lt;i&gt; &amp; 3 &gt; 2\"")) << "quotation marks stay";
    // None but the texts' own: one in the title, four pairs less one in the paragraph.
    EXPECT_EQ(file.count("&lt;"), 2);
    EXPECT_EQ(file.count("&gt;"), 3);
    const QByteArray sheet =
        file.mid(file.indexOf("<style>") + 7, file.indexOf("</style>") - file.indexOf("<style>") - 7);
    EXPECT_FALSE(sheet.contains('<') || sheet.contains('>') || sheet.contains('&'));
}

} // namespace
} // namespace kalvenor::print
