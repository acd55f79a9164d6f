// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/outputfile.h"
#include "platform/print/pagegeometry.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <variant>

// What the writers that go by blocks share.
namespace kalvenor::print {

/// What to take where a font is not at hand.
enum class FontKind { Sans, Serif, Fixed };
FontKind fontKind(const QString &family);

/// PageLayout's area for text. Needs a QGuiApplication.
QRectF textArea(const PrintDocument &document);

/// Stands for "%d" where a running text is taken apart; of no other meaning.
constexpr QChar PageMark(0xE000);

QByteArray pngBytes(const QImage &image);

/// Writes the text of all blocks, `body.out`, piece by piece, and takes the file to its place. Steps are blocks.
/// Throws Error(WriteFailed), Error(Cancelled).
template <typename Body>
void writeBlocks(const PrintDocument &document, OutputFile &file, Body &body, const basic::Progress &progress)
{
    constexpr qsizetype bytesAWrite = 64 * 1024;
    constexpr qint64 blocksAStep = 512;
    const auto total = static_cast<qint64>(document.blocks().size());
    qint64 done = 0;
    const auto write = [&] {
        file.write(body.out);
        file.check();
        body.out.resize(0);
    };
    for (const Block &block : document.blocks()) {
        std::visit(body, block);
        if (body.out.size() >= bytesAWrite)
            write();
        if (progress && (++done % blocksAStep == 0 || done == total) && !progress(done, total))
            file.cancel();
    }
    body.end();
    write();
    file.commit();
}

} // namespace kalvenor::print
