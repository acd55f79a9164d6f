// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/pagelayout.h"

#include <QString>

namespace kalvenor::print {

enum class PdfKind {
    Plain,
    Archive, ///< PDF/A-1b: colours and metadata as ISO 19005-1 wants them for keeping
};

/// Writes a layout as a PDF file (native path): fonts embedded, text searchable, title, language and outline. The file
/// is written beside its place and takes it at the end, so that an old one stays whole until then and no half one is
/// ever left. Throws Error(WriteFailed) where the place cannot be written or the disk is full, Error(Cancelled) where
/// the watcher says so. Steps are pages.
void writePdf(const PageLayout &layout, const QString &title, const QString &path, const basic::Progress &progress = {},
              PdfKind kind = PdfKind::Plain);

} // namespace kalvenor::print
