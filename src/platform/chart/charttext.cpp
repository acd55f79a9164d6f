// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/charttext.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QTransform>
#include <utility>

namespace kalvenor::chart {
namespace {

constexpr double Touching = 0.5; // rounding, not an overlap

// The pieces between which a line may end; blanks stay at the end of their piece.
QStringList pieces(const QString &text)
{
    QStringList list{QString()};
    for (const QChar c : text) {
        list.last() += c;
        if (c == u' ' || c == u'-' || c == u'/')
            list << QString();
    }
    return list;
}

} // namespace

QRectF PlacedText::box() const
{
    return {QPointF(-block.size.width() / 2, -block.size.height() / 2), block.size};
}

QPolygonF PlacedText::outline() const
{
    QTransform turn;
    turn.translate(centre.x(), centre.y());
    turn.rotate(angle);
    return turn.map(QPolygonF(box()));
}

ChartFont::ChartFont(const QFont &base, double pixels, bool bold)
    : m_font([&] {
          QFont font(base);
          font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
          font.setBold(bold);
          font.setHintingPreference(QFont::PreferNoHinting); // as long at any resolution
          return font;
      }()),
      m_metrics(m_font)
{
}

double ChartFont::width(const QString &line) const
{
    return std::ceil(m_metrics.horizontalAdvance(line)) + 2; // italic and rounded ends
}

TextBlock ChartFont::line(const QString &text) const
{
    return {text, {width(text), lineHeight()}};
}

TextBlock ChartFont::wrapped(const QString &text, double width, int mostLines) const
{
    QStringList lines{QString()};
    for (const QString &piece : pieces(text)) {
        if (!lines.last().isEmpty() && this->width((lines.last() + piece).trimmed()) > width)
            lines << piece;
        else
            lines.last() += piece;
    }
    double widest = 0;
    for (QString &line : lines) {
        line = line.trimmed();
        widest = std::max(widest, this->width(line));
    }
    const auto count = static_cast<int>(lines.size());
    return {lines.join(u'\n'), {widest, count * m_metrics.lineSpacing()}, widest <= width && count <= mostLines};
}

TextBlock ChartFont::forced(const QString &text, double width, int mostLines) const
{
    const TextBlock block = wrapped(text, width, mostLines);
    return block.whole ? block : line(m_metrics.elidedText(text, Qt::ElideMiddle, std::max(0.0, width - 2)));
}

PlacedText ChartFont::place(TextRole role, const TextBlock &block, QPointF centre, double angle) const
{
    return {role, m_font, block, centre, angle};
}

// Convex shapes are apart where a line along one of their edges parts them.
bool overlap(const QPolygonF &one, const QPolygonF &other)
{
    if (!one.boundingRect().intersects(other.boundingRect()))
        return false;
    const auto parted = [](const QPolygonF &by, const QPolygonF &with) {
        for (qsizetype i = 0; i + 1 < by.size(); ++i) {
            const QPointF edge = by[i + 1] - by[i];
            const double length = std::hypot(edge.x(), edge.y());
            if (length == 0)
                continue;
            const QPointF normal(edge.y() / length, -edge.x() / length);
            const auto range = [&normal](const QPolygonF &shape) {
                double low = std::numeric_limits<double>::max();
                double high = std::numeric_limits<double>::lowest();
                for (const QPointF &corner : shape) {
                    const double along = QPointF::dotProduct(corner, normal);
                    low = std::min(low, along);
                    high = std::max(high, along);
                }
                return std::pair(low, high);
            };
            const auto [lowBy, highBy] = range(by);
            const auto [lowWith, highWith] = range(with);
            if (std::min(highBy, highWith) - std::max(lowBy, lowWith) < Touching)
                return true;
        }
        return false;
    };
    return !parted(one, other) && !parted(other, one);
}

} // namespace kalvenor::chart
