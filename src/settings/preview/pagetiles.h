// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"
#include "platform/print/pagepainter.h"
#include <memory>
#include <optional>
#include <QCache>
#include <QColor>
#include <QPixmap>
#include <QSize>

namespace kalvenor::settings {

/// One square of a page as it is shown; column and row count from its top left corner.
struct TileKey {
    int page = 0;
    int column = 0;
    int row = 0;

    bool operator==(const TileKey &) const = default;
};
size_t qHash(const TileKey &key, size_t seed = 0);

/// Pictures of the pages in squares, so that a page is painted only where it is seen. Only so many bytes of those used
/// last are kept, however many pages were looked at.
class PageTiles {
public:
    static constexpr int Side = 512; ///< pixels of the device
    static constexpr qsizetype LeastBytes = 48 << 20;

    void setPages(std::shared_ptr<const print::PageLayout> layout);
    /// Size of a page in pixels of the device. Another one than before drops all pictures.
    void setPageSize(QSize size);
    void setPaper(const QColor &paper);
    /// What is seen at once, in pixels of the device: so much is always kept, and LeastBytes.
    void setRoom(QSize room);

    /// The picture where there is one.
    const QPixmap *find(const TileKey &key) const { return m_tiles.object(key); }
    /// Paints it. The pointer is good until the next call.
    const QPixmap *render(const TileKey &key);
    qsizetype bytes() const { return m_tiles.totalCost(); }

private:
    std::shared_ptr<const print::PageLayout> m_layout;
    std::optional<print::PagePainter> m_painter;
    QSize m_pageSize;
    QColor m_paper = Qt::white;
    QCache<TileKey, QPixmap> m_tiles{LeastBytes};
};

} // namespace kalvenor::settings
