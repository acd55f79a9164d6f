// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/printdocument.h"

#include <QString>

namespace kalvenor::print {

/// Writes a document as one HTML 5 page in UTF-8 that needs no other file, well-formed as XML too, one row a line, LF.
/// It reads as a page as wide as the paper's text on a screen and prints on the document's paper; a header or footer
/// part with a page number stands on paper alone, where the browser knows how.
/// Texts have &, < and > as &amp;, &lt; and &gt;, and quotation marks as they are; nothing else in the file is written
/// &lt; or &gt;, so that tags composed as texts come to life when these are turned back.
/// The file takes its place at the end, as a PDF does. Throws Error(WriteFailed), Error(Cancelled) and
/// Error(InvalidProcedureCall) where the margins leave no room. Steps are blocks. Needs a QGuiApplication.
void writeHtmlFile(const PrintDocument &document, const QString &nativePath, const basic::Progress &progress = {});

} // namespace kalvenor::print
