// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pagelayout.h"
#include "settings/preview/pagegrid.h"
#include "settings/preview/pagesearch.h"
#include "settings/preview/pagetiles.h"
#include <memory>
#include <optional>
#include <QAbstractScrollArea>
#include <QColor>
#include <QElapsedTimer>

namespace kalvenor::settings {

/// Shows the pages of a layout below each other. Only what is seen is painted, a part at a time where that takes long.
/// Pages count from 0.
class PageView : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit PageView(QWidget *parent = nullptr);

    /// The current page stays where there still is one of its number. Null: none.
    void setPages(std::shared_ptr<const print::PageLayout> layout);
    const std::shared_ptr<const print::PageLayout> &pages() const { return m_layout; }
    int pageCount() const;
    int currentPage() const { return m_current; }
    /// Brings the page's top to the top of the view, numbers outside the first or last one.
    void goToPage(int page);

    Fit fit() const { return m_fit; }
    void setFit(Fit fit);
    /// In percent; the size of a page on paper is 100.
    int zoom() const;
    void setZoom(int percent);
    void zoomStep(bool larger);
    /// Lays the pages out again for the room there is.
    void refit();

    /// Of the pages, not of the ground between them.
    void setPaper(const QColor &color);
    const QColor &paper() const { return m_paper; }

    /// What is marked as found; null: nothing. The search must outlive its use here.
    void setSearch(const PageSearch *search);
    /// Marks this match as the one at hand and brings it into view.
    void showMatch(std::size_t number);
    std::optional<std::size_t> shownMatch() const { return m_match; }

    const PageTiles &tiles() const { return m_tiles; }
    const PageGrid &grid() const { return m_grid; }
    /// Everything that is seen has been painted.
    bool isComplete() const { return m_complete; }

Q_SIGNALS:
    void currentPageChanged(int page);
    void zoomChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    double actualSize() const;
    QPoint scrolled() const;
    void layPagesOut();
    /// Changes what is shown and keeps the place of the page under `anchor` (of the viewport) where it is.
    void reshape(Fit fit, int percent, QPoint anchor);
    void scrollTo(int x, int y);
    void setCurrent(int page);
    void followScrolling();
    bool paintPage(QPainter &painter, int page, const QRect &exposed, const QElapsedTimer &clock);
    void paintMatches(QPainter &painter, int page, const QRect &place) const;
    void stepPages(int rows);

    std::shared_ptr<const print::PageLayout> m_layout;
    PageTiles m_tiles;
    PageGrid m_grid;
    Fit m_fit = Fit::WholePage;
    int m_percent = 100; ///< for Fit::None
    double m_scale = 0;  ///< pixels of the screen a twip
    double m_ratio = 1;  ///< pixels of the device a pixel of the screen
    int m_current = 0;
    int m_wheel = 0;       ///< turned with Ctrl, not yet a step
    bool m_moving = false; ///< the view scrolls by itself
    bool m_complete = false;
    QColor m_paper = Qt::white;
    const PageSearch *m_search = nullptr;
    std::optional<std::size_t> m_match;
};

} // namespace kalvenor::settings
