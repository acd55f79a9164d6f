// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/pagetiles.h"

#include <algorithm>
#include <QPainter>
#include <utility>

namespace kalvenor::settings {

namespace {

constexpr qsizetype BytesPerPixel = 4;

} // namespace

size_t qHash(const TileKey &key, size_t seed)
{
    return qHashMulti(seed, key.page, key.column, key.row);
}

void PageTiles::setPages(std::shared_ptr<const print::PageLayout> layout)
{
    m_tiles.clear();
    m_painter.reset();
    m_layout = std::move(layout);
    if (m_layout)
        m_painter.emplace(*m_layout);
}

void PageTiles::setPageSize(QSize size)
{
    if (size != m_pageSize)
        m_tiles.clear();
    m_pageSize = size;
}

void PageTiles::setPaper(const QColor &paper)
{
    if (paper != m_paper)
        m_tiles.clear();
    m_paper = paper;
}

void PageTiles::setRoom(QSize room)
{
    const auto tiles = [](int length) {
        return static_cast<qsizetype>(length) / Side + 2;
    };
    // Pages smaller than a tile have smaller ones; gaps only make it less.
    m_tiles.setMaxCost(
        std::max(LeastBytes, 2 * tiles(room.width()) * tiles(room.height()) * Side * Side * BytesPerPixel));
}

const QPixmap *PageTiles::render(const TileKey &key)
{
    const QRect area = QRect(key.column * Side, key.row * Side, Side, Side) & QRect(QPoint(), m_pageSize);
    auto pixmap = std::make_unique<QPixmap>(area.size());
    pixmap->fill(m_paper);
    QPainter painter(pixmap.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(-area.topLeft());
    const QSizeF paper = m_layout->paperSize();
    painter.scale(m_pageSize.width() / paper.width(), m_pageSize.height() / paper.height());
    m_painter->paint(painter, m_layout->pages()[static_cast<std::size_t>(key.page)]);
    painter.end();
    const qsizetype bytes = BytesPerPixel * area.width() * area.height();
    m_tiles.insert(key, pixmap.release(), bytes);
    return m_tiles.object(key);
}

} // namespace kalvenor::settings
