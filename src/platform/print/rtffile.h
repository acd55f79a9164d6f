// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/printdocument.h"

#include <QString>

namespace kalvenor::print {

/// Writes a document as an RTF file (1.5 and later) for word processors, which make the pages anew: paper, margins,
/// header and footer, table headings repeated, the outline as heading levels. An elided column is whole there.
/// The file takes its place at the end, as a PDF does. Throws Error(WriteFailed), Error(Cancelled) and
/// Error(InvalidProcedureCall) where the margins leave no room. Steps are blocks. Needs a QGuiApplication.
void writeRtfFile(const PrintDocument &document, const QString &nativePath, const basic::Progress &progress = {});

} // namespace kalvenor::print
