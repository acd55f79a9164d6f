// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/lineicon.h"

#include <algorithm>
#include <initializer_list>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <utility>

namespace kalvenor::desktop {

namespace {

// Drawings live on a field of 24 × 24 units.
constexpr qreal Field = 24;

/// An angle bracket with its tip at (tip, 12), opening to the left (`way` -1) or to the right (1).
void addAngle(QPainterPath &path, qreal tip, qreal way)
{
    path.moveTo(tip + way * 6, 6);
    path.lineTo(tip, 12);
    path.lineTo(tip + way * 6, 18);
}

void addHead(QPainterPath &path, QPointF tip, QPointF one, QPointF other)
{
    path.moveTo(tip + one);
    path.lineTo(tip);
    path.lineTo(tip + other);
}

QPainterPath undoPath()
{
    QPainterPath path;
    path.moveTo(5, 9);
    path.lineTo(14, 9);
    path.arcTo(QRectF(9.5, 9, 9, 9), 90, -180);
    path.lineTo(9, 18);
    addHead(path, {5, 9}, {4, -4}, {4, 4});
    return path;
}

QPainterPath mirrored(const QPainterPath &path)
{
    return QTransform(-1, 0, 0, 1, Field, 0).map(path);
}

QPainterPath keyboardPath()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(3, 6, 18, 12), 2, 2);
    for (const qreal x : {7.0, 12.0, 17.0}) {
        path.moveTo(x - 0.5, 10);
        path.lineTo(x + 0.5, 10);
    }
    path.moveTo(8, 14);
    path.lineTo(16, 14);
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points)));
    return path;
}

QPainterPath printPath()
{
    QPainterPath path;
    path.addRect(QRectF(7, 13, 10, 7));
    path.addPath(polygon({{7, 8}, {7, 4}, {17, 4}, {17, 8}}));
    path.addPath(polygon({{7, 16}, {4, 16}, {4, 8}, {20, 8}, {20, 16}, {17, 16}}));
    return path;
}

QPainterPath savePath()
{
    QPainterPath path = polygon({{4, 4}, {16, 4}, {20, 8}, {20, 20}, {4, 20}, {4, 4}});
    path.addPath(polygon({{8, 4}, {8, 9}, {15, 9}, {15, 4}}));
    path.addPath(polygon({{7, 20}, {7, 13}, {17, 13}, {17, 20}}));
    return path;
}

QPainterPath slidersPath()
{
    QPainterPath path;
    const std::initializer_list<QPointF> knobs{{8, 6}, {15, 12}, {10, 18}};
    for (const QPointF &knob : knobs) {
        path.addEllipse(knob, 2, 2);
        path.moveTo(4, knob.y());
        path.lineTo(knob.x() - 2, knob.y());
        path.moveTo(knob.x() + 2, knob.y());
        path.lineTo(20, knob.y());
    }
    return path;
}

QPainterPath pagePath()
{
    QPainterPath path = polygon({{6, 3}, {14, 3}, {18, 7}, {18, 21}, {6, 21}, {6, 3}});
    path.addPath(polygon({{14, 3}, {14, 7}, {18, 7}}));
    for (const qreal y : {11.0, 14.0, 17.0}) {
        path.moveTo(9, y);
        path.lineTo(15, y);
    }
    return path;
}

QPainterPath openPath()
{
    QPainterPath path; // a folder
    path.moveTo(4, 18);
    path.lineTo(4, 6);
    path.lineTo(9, 6);
    path.lineTo(11, 8.5);
    path.lineTo(18, 8.5);
    path.lineTo(18, 11);
    path.moveTo(4, 18);
    path.lineTo(7, 11);
    path.lineTo(21, 11);
    path.lineTo(18, 18);
    path.closeSubpath();
    return path;
}

QPainterPath sheetPath(QRectF sheet, qreal corner)
{
    QPainterPath path;
    path.moveTo(sheet.topLeft());
    path.lineTo(sheet.right() - corner, sheet.top());
    path.lineTo(sheet.right(), sheet.top() + corner);
    path.lineTo(sheet.bottomRight());
    path.lineTo(sheet.bottomLeft());
    path.closeSubpath();
    return path;
}

QPainterPath helpPath()
{
    QPainterPath path;
    path.addEllipse(QRectF(3.5, 3.5, 17, 17));
    path.moveTo(9.3, 9.7);
    path.arcTo(QRectF(9.2, 7, 5.6, 5.6), 180, -220);
    path.quadTo(12, 13, 12, 14.3);
    path.moveTo(11.9, 17);
    path.lineTo(12.1, 17);
    return path;
}

QPainterPath pathOf(LineIcon which)
{
    QPainterPath path;
    switch (which) {
    case LineIcon::Right:
        addAngle(path, 15, -1);
        break;
    case LineIcon::AllRight:
        addAngle(path, 12, -1);
        addAngle(path, 19, -1);
        break;
    case LineIcon::Left:
        return mirrored(pathOf(LineIcon::Right));
    case LineIcon::AllLeft:
        return mirrored(pathOf(LineIcon::AllRight));
    case LineIcon::Undo:
        return undoPath();
    case LineIcon::Redo:
        return mirrored(undoPath());
    case LineIcon::Reload:
        path.arcMoveTo(QRectF(5, 5, 14, 14), 30);
        path.arcTo(QRectF(5, 5, 14, 14), 30, 285);
        addHead(path, path.pointAtPercent(0), {-5.2, 0.6}, {0.6, -5.2});
        break;
    case LineIcon::Quit:
        path.arcMoveTo(QRectF(5, 5.5, 14, 14), 55);
        path.arcTo(QRectF(5, 5.5, 14, 14), 55, -290);
        path.moveTo(12, 3);
        path.lineTo(12, 11);
        break;
    case LineIcon::Keyboard:
        return keyboardPath();
    case LineIcon::Clear:
        path.moveTo(6, 6);
        path.lineTo(18, 18);
        path.moveTo(18, 6);
        path.lineTo(6, 18);
        break;
    case LineIcon::Find:
        path.addEllipse(QRectF(4, 4, 11, 11));
        path.moveTo(13.5, 13.5);
        path.lineTo(20, 20);
        break;
    case LineIcon::Copy:
        path.addRoundedRect(QRectF(8, 8, 12, 12), 2, 2);
        path.moveTo(16, 5.5);
        path.lineTo(16, 4);
        path.lineTo(4, 4);
        path.lineTo(4, 16);
        path.lineTo(5.5, 16);
        break;
    case LineIcon::First:
        path.moveTo(7, 6);
        path.lineTo(7, 18);
        addAngle(path, 11, 1);
        break;
    case LineIcon::Last:
        return mirrored(pathOf(LineIcon::First));
    case LineIcon::Up:
        return polygon({{6, 15}, {12, 9}, {18, 15}});
    case LineIcon::Down:
        return polygon({{6, 9}, {12, 15}, {18, 9}});
    case LineIcon::Plus:
        path.moveTo(12, 5);
        path.lineTo(12, 19);
        [[fallthrough]];
    case LineIcon::Minus:
        path.moveTo(5, 12);
        path.lineTo(19, 12);
        break;
    case LineIcon::Print:
        return printPath();
    case LineIcon::Save:
        return savePath();
    case LineIcon::Sliders:
        return slidersPath();
    case LineIcon::Page:
        return pagePath();
    case LineIcon::Open:
        return openPath();
    case LineIcon::Reset:
        path = sheetPath({5.5, 3.5, 13, 17}, 4);
        break;
    case LineIcon::Preview:
        path = sheetPath({4.5, 3.5, 11, 17}, 3.5);
        path.addEllipse(QPointF(15.5, 14), 4, 4);
        path.moveTo(18.4, 16.9);
        path.lineTo(21.5, 20);
        break;
    case LineIcon::Help:
        return helpPath();
    }
    return path;
}

class LineEngine : public QIconEngine {
public:
    explicit LineEngine(QPainterPath path, const QColor &bar = {}) : m_path(std::move(path)), m_bar(bar) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const qreal scale = std::min(rect.width(), rect.height()) / Field;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(Field, Field) * scale / 2);
        painter->scale(scale, scale);
        painter->setPen(QPen(palette.brush(group, role), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(m_path);
        if (m_bar.isValid())
            painter->fillRect(QRectF(4, 18.5, 16, 3.5), m_bar);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new LineEngine(m_path, m_bar); }

private:
    QPainterPath m_path;
    QColor m_bar;
};

} // namespace

QIcon lineIcon(LineIcon which)
{
    return QIcon(new LineEngine(pathOf(which)));
}

QIcon pathIcon(const QPainterPath &path, const QColor &bar)
{
    return QIcon(new LineEngine(path, bar));
}

} // namespace kalvenor::desktop
