// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/printdocument.h"
#include "platform/print/textface.h"

#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

namespace kalvenor::print {

/// One line of text on its page; x and baseline in twips from the paper's top left corner.
struct PlacedText {
    float x = 0;
    float baseline = 0;
    float width = 0;
    StyleId style = 0;
    QString text;
};

/// A coloured ground behind a text.
struct PlacedGround {
    QRectF area;
    StyleId style = 0;
};

struct PlacedPicture {
    QRectF area;
    QImage image; ///< on white where the document's was transparent, as paper is
};

/// Where a heading of the outline stands; y in twips from the paper's top.
struct PlacedHeading {
    double y = 0;
    int level = 1;
    QString title;
};

struct Page {
    std::vector<PlacedGround> grounds;
    std::vector<PlacedText> texts;
    std::vector<PlacedPicture> pictures;
    std::vector<PlacedHeading> headings;
};

/// The pages of a document, computed once and the same for screen, printer and PDF. There is always one page at least.
/// Rules: a text is wrapped or elided as its column says and never runs into the next; a row stays together where a
/// page can hold it; a heading (a table's, or a paragraph kept with the next) never ends a page; a paragraph leaves
/// no single line behind; a table's heading is repeated on each of its pages where it takes less than half of one; a
/// picture is made smaller where page or line cannot hold it with what is kept with it.
class PageLayout {
public:
    /// Throws Error(InvalidProcedureCall) where margins leave no room for text or a single line is higher than the
    /// page, Error(Cancelled) where the watcher says so. Steps are blocks. The document may go afterwards.
    explicit PageLayout(const PrintDocument &document, const basic::Progress &progress = {});

    const std::vector<Page> &pages() const { return m_pages; }
    /// The paper as it is read (landscape is wider than high).
    QSizeF paperSize() const { return m_paper; }
    /// Faces of the document's styles, by StyleId.
    const std::vector<TextFace> &faces() const { return m_faces; }
    /// Of the document's texts, "de" or "en".
    const QString &language() const { return m_language; }

private:
    QString m_language;
    QSizeF m_paper;
    std::vector<TextFace> m_faces;
    std::vector<Page> m_pages;
};

} // namespace kalvenor::print
