// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTextCursor;
class QTextDocument;

namespace kalvenor::statistics {

/// Reads HTML into the document with nothing but what the editor offers: bold, italic, underline, strike-through,
/// installed fonts, sizes in half points from 6 to 72, dark enough colours, alignment and bullets. Pictures, links,
/// backgrounds and margins go, numbers of lists become text, the cells of a table's row one line with tabs. Nothing is
/// loaded from elsewhere.
void readPlainedHtml(const QString &html, QTextDocument &document);

/// Inserts a document at the cursor as one step to undo. Into an empty paragraph the first one brings its alignment
/// and bullet; what stands behind the cursor goes on in the last one.
void insertDocument(QTextCursor cursor, const QTextDocument &document);

} // namespace kalvenor::statistics
