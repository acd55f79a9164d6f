// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pdfwriter.h"

#include "platform/print/outputfile.h"
#include "platform/print/pagepainter.h"
#include "platform/print/pdfoutline.h"

#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

/// The file, with an eye on what goes into it.
class PdfFile : public OutputFile {
public:
    PdfFile(const QString &path, PdfOutline &outline) : OutputFile(path, u"PDF"_s), m_outline(outline) {}

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        m_outline.watch(data, size);
        return OutputFile::writeData(data, size);
    }

private:
    PdfOutline &m_outline;
};

} // namespace

void writePdf(const PageLayout &layout, const QString &title, const QString &path, const basic::Progress &progress,
              PdfKind kind)
{
    PdfOutline outline(layout);
    PdfFile file(path, outline);
    QPdfWriter writer(&file);
    if (kind == PdfKind::Archive)
        writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Kalvenor " KALVENOR_VERSION));
    writer.setResolution(1440); // twips
    QSizeF points = layout.paperSize() / 20;
    const bool landscape = points.width() > points.height();
    if (landscape)
        points.transpose();
    writer.setPageLayout(QPageLayout(QPageSize(points, QPageSize::Point, {}, QPageSize::FuzzyMatch),
                                     landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));

    QPainter painter(&writer);
    PagePainter pages(layout);
    const auto total = static_cast<qint64>(layout.pages().size());
    qint64 done = 0;
    for (const Page &page : layout.pages()) {
        if (done > 0)
            writer.newPage();
        pages.paint(painter, page);
        ++done;
        file.check();
        if (progress && !progress(done, total))
            file.cancel();
    }
    painter.end();
    file.write(outline.update());
    file.commit();
}

} // namespace kalvenor::print
