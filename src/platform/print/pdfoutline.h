// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace kalvenor::print {

/// What QPdfWriter of Qt 6.4 cannot say, added behind the file it has written as an incremental update (ISO 32000-1,
/// 7.5.6): the language of the texts, the outline, the title in the window's frame. The file's own bytes stay as they
/// are, its metadata and PDF/A conformance with them.
class PdfOutline {
public:
    explicit PdfOutline(const PageLayout &layout);

    /// All that is written goes through here, in order.
    void watch(const char *data, qint64 size);
    /// What is to be written behind it; nothing where the file is not built as Qt builds it, which is then whole
    /// without these.
    QByteArray update() const;

private:
    struct Item {
        QString title;
        int level = 1;
        std::size_t page = 0;
        double y = 0; ///< in points from the paper's bottom
    };
    QByteArray items(const std::vector<QByteArray> &pages, qsizetype firstObject, std::vector<qsizetype> &places,
                     qsizetype offset) const;

    QByteArray m_language;
    std::vector<Item> m_items;
    qsizetype m_tailSize;
    QByteArray m_head; ///< the catalog stands there
    QByteArray m_tail; ///< the list of pages and all that follows it
    qint64 m_size = 0;
};

} // namespace kalvenor::print
