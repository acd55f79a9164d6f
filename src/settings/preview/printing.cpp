// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/printing.h"

#include "platform/basic/error.h"
#include "platform/print/pagepainter.h"
#include <algorithm>
#include <QFile>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double SameSize = 0.98; ///< paper sizes are rounded to points or tenths of a millimetre

[[noreturn]] void fail(const QPrinter &printer)
{
    const bool toFile = !printer.outputFileName().isEmpty();
    throw toFile ? basic::Error(basic::Fault::PrintFileNotWritten, {.file = printer.outputFileName()})
                 : basic::Error(basic::Fault::PrinterRefused, {.file = printer.printerName()});
}

/// The PDF engine does not look at what its file answers; a whole file ends with this mark (ISO 32000-1, 7.5.5).
bool isWholePdf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    file.seek(std::max<qint64>(0, file.size() - 32));
    return file.readAll().contains("%%EOF");
}

double fittingScale(const print::PageLayout &layout, const QPrinter &printer)
{
    const QSizeF paper = printer.paperRect(QPrinter::Inch).size() * TwipsPerInch;
    const double fitting =
        std::min(paper.width() / layout.paperSize().width(), paper.height() / layout.paperSize().height());
    return fitting >= SameSize ? 1 : fitting;
}

} // namespace

PrintChoice printChoice(const QPrinter &printer, int currentPage)
{
    PrintChoice choice;
    switch (printer.printRange()) {
    case QPrinter::PageRange:
        choice.ranges = printer.pageRanges();
        if (choice.ranges.isEmpty() && printer.fromPage() > 0)
            choice.ranges.addRange(printer.fromPage(), std::max(printer.fromPage(), printer.toPage()));
        break;
    case QPrinter::CurrentPage:
        choice.ranges.addPage(currentPage + 1);
        break;
    default:
        break;
    }
    choice.copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    choice.collated = printer.collateCopies();
    choice.lastFirst = printer.pageOrder() == QPrinter::LastPageFirst;
    return choice;
}

std::vector<int> pagesToPrint(int pageCount, const PrintChoice &choice)
{
    std::vector<int> once;
    for (int page = 0; page < pageCount; ++page) {
        if (choice.ranges.isEmpty() || choice.ranges.contains(page + 1))
            once.push_back(page);
    }
    if (choice.lastFirst)
        std::reverse(once.begin(), once.end());
    std::vector<int> pages;
    if (choice.collated) {
        for (int copy = 0; copy < choice.copies; ++copy)
            pages.insert(pages.end(), once.begin(), once.end());
    } else {
        for (const int page : once)
            pages.insert(pages.end(), static_cast<std::size_t>(std::max(choice.copies, 0)), page);
    }
    return pages;
}

void preparePrinter(QPrinter &printer, const print::PageLayout &layout, const QString &title)
{
    QSizeF points = layout.paperSize() / 20;
    const bool landscape = points.width() > points.height();
    if (landscape)
        points.transpose();
    printer.setDocName(title);
    printer.setCreator(QStringLiteral("Kalvenor " KALVENOR_VERSION));
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::FuzzyMatch));
    printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

void printPages(const print::PageLayout &layout, QPrinter &printer, const std::vector<int> &pages,
                const basic::Progress &progress)
{
    printer.setFullPage(true); // places count from the paper's corner
    QPainter painter;
    if (!painter.begin(&printer))
        fail(printer);
    const double fitting = fittingScale(layout, printer);
    painter.scale(printer.logicalDpiX() / TwipsPerInch * fitting, printer.logicalDpiY() / TwipsPerInch * fitting);
    print::PagePainter painterOfPages(layout);
    const auto discard = [&] {
        printer.abort();
        painter.end();
        if (!printer.outputFileName().isEmpty())
            QFile::remove(printer.outputFileName());
    };
    qint64 done = 0;
    for (const int page : pages) {
        if ((done > 0 && !printer.newPage()) || printer.printerState() == QPrinter::Error) {
            discard();
            fail(printer);
        }
        painterOfPages.paint(painter, layout.pages()[static_cast<std::size_t>(page)]);
        ++done;
        if (progress && !progress(done, static_cast<qint64>(pages.size()))) {
            discard();
            throw basic::Error(basic::Fault::Stopped);
        }
    }
    if (!painter.end() || (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty() &&
                           !isWholePdf(printer.outputFileName()))) {
        fail(printer);
    }
}

} // namespace kalvenor::settings
