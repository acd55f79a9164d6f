// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/pdfwriter.h"
#include "platform/print/rtffile.h"

#include <cstdio>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

// bench_print pdf|rtf|html|none ROWS FILE: a list of three columns; "none" makes the document and writes nothing.
namespace kalvenor {
namespace {

print::PrintDocument listOf(int rows)
{
    print::PrintDocument document;
    document.title = u"Ages"_s;
    document.footer.text = u"||%d"_s;
    const print::StyleId bold = document.addStyle({.bold = true});
    document.add(print::TableStart{{{.width = 6000}, {print::Alignment::Centre, 1700}, {print::Alignment::Right, 1500}},
                                   {{{u"Name"_s, bold}, {u"Born"_s, bold}, {u"Age"_s, bold}}}});
    for (int i = 0; i < rows; ++i)
        document.add(print::TableRow{
            {{u"Müller-Lüdenscheid, Johann Georg %1"_s.arg(i)},
             {u"%1.%2.18%3"_s.arg(i % 28 + 1, 2, 10, QChar(u'0')).arg(i % 12 + 1, 2, 10, QChar(u'0')).arg(i % 90 + 10)},
             {QString::number(i % 97)}}});
    return document;
}

int run(const QStringList &arguments)
{
    if (arguments.size() != 4) {
        std::fputs("usage: bench_print pdf|rtf|html|none ROWS FILE\n", stderr);
        return 2;
    }
    const print::PrintDocument document = listOf(arguments[2].toInt());
    if (arguments[1] == u"pdf")
        print::writePdf(print::PageLayout(document), document.title, arguments[3]);
    else if (arguments[1] == u"rtf")
        print::writeRtfFile(document, arguments[3]);
    else if (arguments[1] == u"html")
        print::writeHtmlFile(document, arguments[3]);
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
    } catch (const kalvenor::basic::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
