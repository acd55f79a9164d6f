// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/lineicon.h"

#include "platform/desktop/pathdata.h"
#include <algorithm>
#include <QColor>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <utility>

namespace kalvenor::desktop {

namespace {

constexpr qreal Field = 24;
constexpr qreal LineWidth = 1.8;
constexpr QRectF Bar(4, 18.5, 16, 3.5);

struct Drawing {
    LineIcon icon;
    std::string_view data; ///< on a field of 24 × 24 units
};

// clang-format off
constexpr Drawing Drawings[] = {
    {LineIcon::Right, "M9 6L15 12L9 18"},
    {LineIcon::AllRight, "M6 6L12 12L6 18M13 6L19 12L13 18"},
    {LineIcon::Left, "M15 6L9 12L15 18"},
    {LineIcon::AllLeft, "M18 6L12 12L18 18M11 6L5 12L11 18"},
    {LineIcon::Undo, "M5 9H14A4.5 4.5 0 0 1 14 18H9M9 5L5 9L9 13"},
    {LineIcon::Redo, "M19 9H10A4.5 4.5 0 0 0 10 18H15M15 5L19 9L15 13"},
    {LineIcon::Reload, "M18.06 8.5A7 7 0 1 0 16.95 16.95M12.86 9.1L18.06 8.5L18.66 3.3"},
    {LineIcon::Quit, "M16.02 6.77A7 7 0 1 1 7.98 6.77M12 3V11"},
    {LineIcon::Keyboard, "M5 6H19A2 2 0 0 1 21 8V16A2 2 0 0 1 19 18H5A2 2 0 0 1 3 16V8A2 2 0 0 1 5 6Z"
                         "M6.5 10H7.5M11.5 10H12.5M16.5 10H17.5M8 14H16"},
    {LineIcon::Clear, "M6 6L18 18M18 6L6 18"},
    {LineIcon::Find, "M4 9.5A5.5 5.5 0 1 1 15 9.5A5.5 5.5 0 1 1 4 9.5ZM13.5 13.5L20 20"},
    {LineIcon::Copy, "M10 8H18A2 2 0 0 1 20 10V18A2 2 0 0 1 18 20H10A2 2 0 0 1 8 18V10A2 2 0 0 1 10 8Z"
                     "M16 5.5V4H4V16H5.5"},
    {LineIcon::First, "M7 6V18M17 6L11 12L17 18"},
    {LineIcon::Last, "M17 6V18M7 6L13 12L7 18"},
    {LineIcon::Up, "M6 15L12 9L18 15"},
    {LineIcon::Down, "M6 9L12 15L18 9"},
    {LineIcon::Plus, "M12 5V19M5 12H19"},
    {LineIcon::Minus, "M5 12H19"},
    {LineIcon::Print, "M7 13H17V20H7ZM7 8V4H17V8M7 16H4V8H20V16H17"},
    {LineIcon::Save, "M4 4H16L20 8V20H4ZM8 4V9H15V4M7 20V13H17V20"},
    {LineIcon::Sliders, "M6 6A2 2 0 1 1 10 6A2 2 0 1 1 6 6ZM4 6H6M10 6H20"
                        "M13 12A2 2 0 1 1 17 12A2 2 0 1 1 13 12ZM4 12H13M17 12H20"
                        "M8 18A2 2 0 1 1 12 18A2 2 0 1 1 8 18ZM4 18H8M12 18H20"},
    {LineIcon::Page, "M6 3H14L18 7V21H6ZM14 3V7H18M9 11H15M9 14H15M9 17H15"},
    {LineIcon::Open, "M4 18V6H9L11 8.5H18V11M4 18L7 11H21L18 18Z"},
    {LineIcon::Reset, "M5.5 3.5H14.5L18.5 7.5V20.5H5.5Z"},
    {LineIcon::Preview, "M4.5 3.5H12L15.5 7V20.5H4.5ZM11.5 14A4 4 0 1 1 19.5 14A4 4 0 1 1 11.5 14ZM18.4 16.9L21.5 20"},
    {LineIcon::Help, "M3.5 12A8.5 8.5 0 1 1 20.5 12A8.5 8.5 0 1 1 3.5 12Z"
                     "M9.2 9.8A2.8 2.8 0 1 1 14.14 11.6Q12 13 12 14.3M11.9 17H12.1"},
    {LineIcon::Bold, "M7.5 5V19M9 5V19M7.5 5H12C16.5 5 16.5 11.6 12 11.6H9M12 11.6C17.8 11.6 17.8 19 12.5 19H7.5"},
    {LineIcon::Italic, "M14 5L10 19M11 5H17M7 19H13"},
    {LineIcon::Underline, "M7 4V11C7 17.5 17 17.5 17 11V4M6 20H18"},
    {LineIcon::StrikeOut, "M16.5 7C15 3.5 7.5 4 7.5 8C7.5 12 17 11.5 17 16C17 20.5 8 20.5 7 16.5M4 12H20"},
    {LineIcon::AlignLeft, "M4 5.5H20M4 9.9H13M4 14.3H20M4 18.7H13"},
    {LineIcon::AlignCentre, "M4 5.5H20M7.5 9.9H16.5M4 14.3H20M7.5 18.7H16.5"},
    {LineIcon::AlignRight, "M4 5.5H20M11 9.9H20M4 14.3H20M11 18.7H20"},
    {LineIcon::Justify, "M4 5.5H20M4 9.9H20M4 14.3H20M4 18.7H20"},
    {LineIcon::Bullets, "M4.1 6A0.9 0.9 0 1 1 5.9 6A0.9 0.9 0 1 1 4.1 6ZM9.5 6H20"
                        "M4.1 12A0.9 0.9 0 1 1 5.9 12A0.9 0.9 0 1 1 4.1 12ZM9.5 12H20"
                        "M4.1 18A0.9 0.9 0 1 1 5.9 18A0.9 0.9 0 1 1 4.1 18ZM9.5 18H20"},
    {LineIcon::Plain, "M4 5H15M9.5 5V17M14 14L20 20M20 14L14 20"},
    {LineIcon::TextColor, "M7 15.5L12 3.5L17 15.5M8.8 11.3H15.2M5 20.2H19"},
    {LineIcon::Values, "M5 20V13H8V20ZM10.5 20V9H13.5V20ZM16 20V15H19V20ZM5.5 10H7.5M11 6H13M16.5 12H18.5"},
    {LineIcon::Table, "M4 5H20V19H4ZM4 9.7H20M4 14.3H20M10 5V19"},
    {LineIcon::AllDown, "M6 6L12 12L18 6M6 13L12 19L18 13"},
    {LineIcon::AllUp, "M6 18L12 12L18 18M6 11L12 5L18 11"},
    {LineIcon::Funnel, "M4 5H20L14 12.5V19L10 17V12.5Z"},
    {LineIcon::Export, "M8 9H5V20H19V9H16M12 15V3M8 7L12 3L16 7"},
};
// clang-format on

constexpr bool inOrder()
{
    std::size_t place = 0;
    for (const Drawing &drawing : Drawings) {
        if (drawing.icon != static_cast<LineIcon>(place++))
            return false;
    }
    return place == static_cast<std::size_t>(LineIcon::Export) + 1;
}
static_assert(inOrder());

class LineEngine : public QIconEngine {
public:
    explicit LineEngine(QPainterPath path, const QColor &bar) : m_path(std::move(path)), m_bar(bar) {}

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
        painter->setPen(QPen(palette.brush(group, role), LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(m_path);
        if (m_bar.isValid())
            painter->fillRect(Bar, m_bar);
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
    return lineIcon(which, {});
}

QIcon lineIcon(LineIcon which, const QColor &bar)
{
    return QIcon(new LineEngine(pathFromData(Drawings[static_cast<std::size_t>(which)].data), bar));
}

} // namespace kalvenor::desktop
