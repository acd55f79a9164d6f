// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/pageview.h"

#include <algorithm>
#include <cmath>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>
#include <utility>

namespace kalvenor::settings {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr int PaintingMs = 30; ///< then the rest waits for the next round of events
const QColor Found(255, 236, 130);
const QColor FoundAtHand(255, 170, 80);

} // namespace

PageView::PageView(QWidget *parent) : QAbstractScrollArea(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // a bar that comes and goes would change the fit
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

int PageView::pageCount() const
{
    return m_layout ? static_cast<int>(m_layout->pages().size()) : 0;
}

void PageView::setPages(std::shared_ptr<const print::PageLayout> layout)
{
    m_layout = std::move(layout);
    m_search = nullptr; // its matches belong to the old pages
    m_match.reset();
    m_tiles.setPages(m_layout);
    m_current = std::clamp(m_current, 0, std::max(pageCount() - 1, 0));
    layPagesOut();
    goToPage(m_current);
    Q_EMIT currentPageChanged(m_current);
    Q_EMIT zoomChanged();
}

void PageView::goToPage(int page)
{
    if (pageCount() == 0)
        return;
    const int wanted = std::clamp(page, 0, pageCount() - 1);
    const QRect place = m_grid.pageRect(wanted);
    scrollTo(place.center().x() - viewport()->width() / 2, place.top() - PageGrid::Gap);
    setCurrent(wanted);
}

int PageView::zoom() const
{
    return static_cast<int>(std::lround(m_scale / actualSize() * 100));
}

void PageView::setFit(Fit fit)
{
    const int page = m_current;
    m_fit = fit;
    m_percent = zoom();
    layPagesOut();
    goToPage(page);
    Q_EMIT zoomChanged();
}

void PageView::setZoom(int percent)
{
    reshape(Fit::None, percent, viewport()->rect().center());
}

void PageView::zoomStep(bool larger)
{
    setZoom(nextZoom(zoom(), larger));
}

void PageView::reshape(Fit fit, int percent, QPoint anchor)
{
    const int page = m_grid.pageAt(scrolled() + anchor);
    const int held = page >= 0 ? page : m_current;
    const QRect before = m_grid.pageRect(held);
    const QPointF share((scrolled() + anchor - before.topLeft()).x() / std::max(1.0, before.width() * 1.0),
                        (scrolled() + anchor - before.topLeft()).y() / std::max(1.0, before.height() * 1.0));
    m_fit = fit;
    m_percent = std::clamp(percent, SmallestZoom, LargestZoom);
    layPagesOut();
    const QRect after = m_grid.pageRect(held);
    scrollTo(after.left() + qRound(share.x() * after.width()) - anchor.x(),
             after.top() + qRound(share.y() * after.height()) - anchor.y());
    followScrolling();
    Q_EMIT zoomChanged();
}

void PageView::refit()
{
    const int page = m_current;
    const QRect before = m_grid.pageRect(page);
    const double share = static_cast<double>(scrolled().y() - before.top()) / std::max(1, before.height());
    layPagesOut();
    const QRect after = m_grid.pageRect(page);
    scrollTo(scrolled().x(), after.top() + qRound(share * after.height()));
    Q_EMIT zoomChanged();
}

void PageView::setPaper(const QColor &color)
{
    m_paper = color;
    m_tiles.setPaper(color);
    viewport()->update();
}

void PageView::setSearch(const PageSearch *search)
{
    m_search = search;
    m_match.reset();
    viewport()->update();
}

void PageView::showMatch(std::size_t number)
{
    if (m_search == nullptr || number >= m_search->matches().size())
        return;
    m_match = number;
    const PageSearch::Match &match = m_search->matches()[number];
    setCurrent(match.page);
    const QRect page = m_grid.pageRect(match.page);
    QRectF area;
    for (const PageSearch::Area &part : m_search->areas(match.page)) {
        if (part.match == number)
            area |= part.place;
    }
    const QRect seen(scrolled(), viewport()->size());
    const QRect wanted = QRectF(area.topLeft() * m_scale + page.topLeft(), area.size() * m_scale)
                             .toAlignedRect()
                             .marginsAdded({9, 9, 9, 9});
    if (!seen.contains(wanted))
        scrollTo(seen.left() <= wanted.left() && wanted.right() <= seen.right()
                     ? seen.left()
                     : wanted.center().x() - seen.width() / 2,
                 wanted.center().y() - seen.height() / 3);
    viewport()->update();
}

double PageView::actualSize() const
{
    return logicalDpiX() / TwipsPerInch;
}

QPoint PageView::scrolled() const
{
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void PageView::layPagesOut()
{
    const QSize room = viewport()->size();
    m_ratio = devicePixelRatioF();
    if (!m_layout) {
        m_grid = PageGrid(0, {}, 1, room);
        m_scale = actualSize();
    } else {
        const QSizeF paper = m_layout->paperSize();
        const Shown shown = shownAs(m_fit, m_percent, paper, room, actualSize(), pageCount());
        m_scale = shown.scale;
        const QSize page(std::max(1, qRound(paper.width() * m_scale)), std::max(1, qRound(paper.height() * m_scale)));
        m_grid =
            PageGrid(pageCount(), page, shown.columns, room, m_fit == Fit::Thumbnails ? PageGrid::CaptionHeight : 0);
        m_tiles.setPageSize(page * m_ratio);
        m_tiles.setRoom(room * m_ratio);
    }
    const QSize beyond = m_grid.sheet() - room;
    m_moving = true;
    horizontalScrollBar()->setRange(0, std::max(0, beyond.width()));
    verticalScrollBar()->setRange(0, std::max(0, beyond.height()));
    horizontalScrollBar()->setPageStep(room.width());
    verticalScrollBar()->setPageStep(room.height());
    horizontalScrollBar()->setSingleStep(40);
    verticalScrollBar()->setSingleStep(40);
    m_moving = false;
    viewport()->update();
}

void PageView::scrollTo(int x, int y)
{
    m_moving = true;
    horizontalScrollBar()->setValue(x);
    verticalScrollBar()->setValue(y);
    m_moving = false;
    viewport()->update();
}

void PageView::setCurrent(int page)
{
    if (page == m_current)
        return;
    m_current = page;
    viewport()->update();
    Q_EMIT currentPageChanged(page);
}

void PageView::followScrolling()
{
    const int y = verticalScrollBar()->value();
    if (pageCount() == 0 || m_fit == Fit::Thumbnails)
        return;
    // The row under the middle of the view, but each end has its own.
    const int middle = y == 0                                ? 0
                       : y == verticalScrollBar()->maximum() ? m_grid.sheet().height()
                                                             : y + viewport()->height() / 2;
    const auto [first, last] = m_grid.pagesBetween(middle, middle);
    const int row = std::clamp(middle == m_grid.sheet().height() ? pageCount() - 1 : first, 0, pageCount() - 1);
    if (m_current < row || m_current >= row + m_grid.columns())
        setCurrent(row);
}

void PageView::paintEvent(QPaintEvent *event)
{
    if (m_ratio != devicePixelRatioF()) // the window went over to another screen
        layPagesOut();
    QPainter painter(viewport());
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    painter.fillRect(event->rect(), dark ? QColor(45, 46, 48) : QColor(168, 170, 173));
    m_complete = true;
    if (!m_layout)
        return;
    QElapsedTimer clock;
    clock.start();
    const QRect seen = event->rect().translated(scrolled());
    const auto [first, last] = m_grid.pagesBetween(seen.top(), seen.bottom());
    for (int page = first; page <= last; ++page)
        m_complete = paintPage(painter, page, event->rect(), clock) && m_complete;
    if (!m_complete)
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
}

bool PageView::paintPage(QPainter &painter, int page, const QRect &exposed, const QElapsedTimer &clock)
{
    const QRect place = m_grid.pageRect(page).translated(-scrolled());
    const bool thumbnail = m_fit == Fit::Thumbnails;
    if (!place.adjusted(-PageGrid::Gap, -PageGrid::Gap, PageGrid::Gap, PageGrid::Gap + PageGrid::CaptionHeight)
             .intersects(exposed))
        return true;
    painter.fillRect(place.translated(2, 2), QColor(0, 0, 0, 60));
    painter.fillRect(place, m_paper);
    bool complete = true;
    const double side = PageTiles::Side / m_ratio;
    const QRect part = (place & exposed).translated(-place.topLeft());
    if (!part.isEmpty()) {
        const int lastColumn = static_cast<int>(part.right() / side);
        const int lastRow = static_cast<int>(part.bottom() / side);
        for (int row = static_cast<int>(part.top() / side); row <= lastRow; ++row) {
            for (int column = static_cast<int>(part.left() / side); column <= lastColumn; ++column) {
                const TileKey key{page, column, row};
                const QPixmap *tile = m_tiles.find(key);
                if (tile == nullptr && clock.elapsed() < PaintingMs)
                    tile = m_tiles.render(key);
                if (tile == nullptr) {
                    complete = false;
                    continue;
                }
                const QSizeF size = QSizeF(tile->size()) / m_ratio;
                painter.drawPixmap(QRectF(place.topLeft() + QPointF(column * side, row * side), size), *tile,
                                   QRectF(tile->rect()));
            }
        }
    }
    paintMatches(painter, page, place);
    if (thumbnail) {
        const bool current = page == m_current;
        if (current) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
            painter.drawRect(place.adjusted(-2, -2, 1, 1));
        }
        const bool dark = palette().color(QPalette::Window).lightness() < 128;
        painter.setPen(dark ? QColor(220, 220, 220) : QColor(20, 20, 20));
        painter.setFont(font());
        painter.drawText(QRect(place.left(), place.bottom() + 4, place.width(), PageGrid::CaptionHeight),
                         Qt::AlignHCenter | Qt::AlignTop, QString::number(page + 1));
    }
    return complete;
}

void PageView::paintMatches(QPainter &painter, int page, const QRect &place) const
{
    if (m_search == nullptr)
        return;
    painter.setCompositionMode(QPainter::CompositionMode_Multiply); // as a marker pen: the text stays black
    for (const PageSearch::Area &area : m_search->areas(page))
        painter.fillRect(QRectF(area.place.topLeft() * m_scale + place.topLeft(), area.place.size() * m_scale),
                         m_match == area.match ? FoundAtHand : Found);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    refit();
}

void PageView::scrollContentsBy(int, int)
{
    viewport()->update();
    if (!m_moving)
        followScrolling();
}

void PageView::stepPages(int rows)
{
    goToPage(m_current - m_current % m_grid.columns() + rows * m_grid.columns());
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    const bool thumbnails = m_fit == Fit::Thumbnails;
    const bool tall = m_grid.pageSize().height() > viewport()->height() || thumbnails;
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_Home:
        goToPage(0);
        break;
    case Qt::Key_End:
        goToPage(pageCount() - 1);
        break;
    case Qt::Key_PageDown:
    case Qt::Key_PageUp: {
        const int way = event->key() == Qt::Key_PageDown ? 1 : -1;
        if (tall && !control)
            verticalScrollBar()->setValue(verticalScrollBar()->value() + way * (viewport()->height() - 40));
        else
            stepPages(way);
        break;
    }
    case Qt::Key_Space:
        verticalScrollBar()->triggerAction(event->modifiers().testFlag(Qt::ShiftModifier)
                                               ? QAbstractSlider::SliderPageStepSub
                                               : QAbstractSlider::SliderPageStepAdd);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (thumbnails)
            setFit(Fit::WholePage);
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (thumbnails) {
            goToPage(m_current + (event->key() == Qt::Key_Right ? 1 : -1));
            break;
        }
        [[fallthrough]];
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
    m_wheel += event->angleDelta().y();
    if (std::abs(m_wheel) < QWheelEvent::DefaultDeltasPerStep) // a touchpad turns in small parts
        return;
    reshape(Fit::None, nextZoom(zoom(), m_wheel > 0), event->position().toPoint());
    m_wheel = 0;
}

void PageView::mousePressEvent(QMouseEvent *event)
{
    const int page = m_grid.pageAt(scrolled() + event->pos());
    if (page >= 0 && event->button() == Qt::LeftButton)
        setCurrent(page);
}

void PageView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int page = m_grid.pageAt(scrolled() + event->pos());
    if (m_fit == Fit::Thumbnails && page >= 0 && event->button() == Qt::LeftButton) {
        setCurrent(page);
        setFit(Fit::WholePage);
    }
}

void PageView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        viewport()->update();
}

} // namespace kalvenor::settings
