// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pdfwriter.h"

#include "platform/basic/error.h"
#include "platform/print/pagepainter.h"

#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace kalvenor {
namespace {

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw Error(ErrorKind::WriteFailed, path,
                u"The PDF file cannot be written (%1). Choose another folder or name, or make room on the disk; "
                "an older file of this name is unchanged."_qs.arg(reason));
}

/// Passes all on to a file. The PDF engine does not look at what its device answers, and a disk that becomes full takes
/// a part of a write without an error.
class WholeWrites : public QIODevice {
public:
    explicit WholeWrites(QSaveFile &file) : m_file(file) { open(WriteOnly | Unbuffered); }
    bool failed() const { return m_failed; }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        for (qint64 done = 0; done < size && !m_failed;) {
            const qint64 taken = m_file.write(data + done, size - done);
            m_failed = taken <= 0;
            done += taken;
        }
        return m_failed ? -1 : size;
    }

private:
    QSaveFile &m_file;
    bool m_failed = false;
};

} // namespace

void writePdf(const PageLayout &layout, const QString &title, const QString &path, const Progress &progress)
{
    const QFileInfo place(path);
    if (place.exists() && !place.isFile()) // a device would be replaced, too
        fail(path, QStringLiteral("this is a folder or a device"));
    QSaveFile file(path); // leaves nothing behind unless it is committed
    if (!file.open(QIODevice::WriteOnly))
        fail(path, file.errorString());

    WholeWrites device(file);
    QPdfWriter writer(&device);
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
        if (device.failed())
            break;
        if (progress && !progress(done, total))
            throw Error(ErrorKind::Cancelled, path, QStringLiteral("Stopped by the user; nothing was written."));
    }
    painter.end();
    // commit() does not notice that the rest of its buffer finds no room (Qt 6.4).
    if (device.failed() || !file.flush() || !file.commit())
        fail(path, QStringLiteral("the disk may be full"));
}

} // namespace kalvenor
