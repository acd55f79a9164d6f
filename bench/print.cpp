// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/pdfwriter.h"
#include "platform/print/rtfwriter.h"

#include <cstdio>
#include <QGuiApplication>

// bench_print pdf|rtf|html|none ROWS FILE: a list of three columns; "none" makes the document and writes nothing.
namespace kalvenor {
namespace {

PrintDocument listOf(int rows)
{
    PrintDocument document;
    document.title = QStringLiteral("Ages");
    document.footer.text = QStringLiteral("||%d");
    const StyleId bold = document.addStyle({.bold = true});
    document.add(TableStart{columnsFromFormat(u"<6000|^1700|>1500"),
                            {{{u"Name"_qs, bold}, {u"Born"_qs, bold}, {u"Age"_qs, bold}}}});
    for (int i = 0; i < rows; ++i)
        document.add(TableRow{{{u"Müller-Lüdenscheid, Johann Georg %1"_qs.arg(i)},
                               {u"%1.%2.18%3"_qs.arg(i % 28 + 1, 2, 10, QChar(u'0'))
                                    .arg(i % 12 + 1, 2, 10, QChar(u'0'))
                                    .arg(i % 90 + 10)},
                               {QString::number(i % 97)}}});
    return document;
}

int run(const QStringList &arguments)
{
    if (arguments.size() != 4) {
        std::fputs("usage: bench_print pdf|rtf|html|none ROWS FILE\n", stderr);
        return 2;
    }
    const PrintDocument document = listOf(arguments[2].toInt());
    if (arguments[1] == u"pdf")
        writePdf(PageLayout(document), document.title, arguments[3]);
    else if (arguments[1] == u"rtf")
        writeRtfFile(document, arguments[3]);
    else if (arguments[1] == u"html")
        writeHtmlFile(document, arguments[3]);
    return 0;
}

} // namespace
} // namespace kalvenor

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        return kalvenor::run(QGuiApplication::arguments());
    } catch (const kalvenor::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
