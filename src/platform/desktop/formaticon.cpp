// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/formaticon.h"

#include <QPainterPath>

namespace kalvenor::desktop {

namespace {

void addLine(QPainterPath &path, QPointF from, QPointF to)
{
    path.moveTo(from);
    path.lineTo(to);
}

QPainterPath boldPath()
{
    QPainterPath path;
    for (const qreal x : {7.5, 9.0}) {
        path.moveTo(x, 5);
        path.lineTo(x, 19);
    }
    path.moveTo(7.5, 5);
    path.lineTo(12, 5);
    path.cubicTo(16.5, 5, 16.5, 11.6, 12, 11.6);
    path.lineTo(9, 11.6);
    path.moveTo(12, 11.6);
    path.cubicTo(17.8, 11.6, 17.8, 19, 12.5, 19);
    path.lineTo(7.5, 19);
    return path;
}

QPainterPath strikeOutPath()
{
    QPainterPath path;
    path.moveTo(16.5, 7);
    path.cubicTo(15, 3.5, 7.5, 4, 7.5, 8);
    path.cubicTo(7.5, 12, 17, 11.5, 17, 16);
    path.cubicTo(17, 20.5, 8, 20.5, 7, 16.5);
    addLine(path, {4, 12}, {20, 12});
    return path;
}

/// Four lines, the second and fourth shorter and placed by `side`: 0 left, 1 middle, 2 right.
QPainterPath linesPath(int side, qreal shortLine = 9)
{
    QPainterPath path;
    constexpr qreal Long = 16;
    for (int i = 0; i < 4; ++i) {
        const qreal length = i % 2 == 0 ? Long : shortLine;
        const qreal x = 4 + (Long - length) * side / 2;
        const qreal y = 5.5 + i * 4.4;
        addLine(path, {x, y}, {x + length, y});
    }
    return path;
}

QPainterPath letterPath()
{
    QPainterPath path;
    path.moveTo(7, 15.5);
    path.lineTo(12, 3.5);
    path.lineTo(17, 15.5);
    addLine(path, {8.8, 11.3}, {15.2, 11.3});
    return path;
}

QPainterPath pathOf(FormatIcon which)
{
    QPainterPath path;
    switch (which) {
    case FormatIcon::Bold:
        return boldPath();
    case FormatIcon::Italic:
        addLine(path, {14, 5}, {10, 19});
        addLine(path, {11, 5}, {17, 5});
        addLine(path, {7, 19}, {13, 19});
        break;
    case FormatIcon::Underline:
        path.moveTo(7, 4);
        path.lineTo(7, 11);
        path.cubicTo(7, 17.5, 17, 17.5, 17, 11);
        path.lineTo(17, 4);
        addLine(path, {6, 20}, {18, 20});
        break;
    case FormatIcon::StrikeOut:
        return strikeOutPath();
    case FormatIcon::Left:
        return linesPath(0);
    case FormatIcon::Centre:
        return linesPath(1);
    case FormatIcon::Right:
        return linesPath(2);
    case FormatIcon::Justify:
        return linesPath(0, 16);
    case FormatIcon::Bullets:
        for (const qreal y : {6.0, 12.0, 18.0}) {
            path.addEllipse(QPointF(5, y), 0.9, 0.9);
            addLine(path, {9.5, y}, {20, y});
        }
        break;
    case FormatIcon::Plain:
        addLine(path, {4, 5}, {15, 5});
        addLine(path, {9.5, 5}, {9.5, 17});
        addLine(path, {14, 14}, {20, 20});
        addLine(path, {20, 14}, {14, 20});
        break;
    }
    return path;
}

} // namespace

QIcon formatIcon(FormatIcon which)
{
    return pathIcon(pathOf(which));
}

QIcon colorIcon(const QColor &color)
{
    QPainterPath path = letterPath();
    if (!color.isValid())
        addLine(path, {5, 20.2}, {19, 20.2});
    return pathIcon(path, color);
}

} // namespace kalvenor::desktop
