// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/colorbutton.h"

#include <array>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QRegularExpressionValidator>
#include <QToolButton>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

namespace {

constexpr int PaletteColumns = 8;
constexpr std::array<QRgb, 40> PaletteColors = {
    0x000000, 0x404040, 0x606060, 0x808080, 0xA0A0A0, 0xC0C0C0, 0xE0E0E0, 0xFFFFFF, 0x600000, 0x804000,
    0x806000, 0x406000, 0x006040, 0x004080, 0x000080, 0x600060, 0xC00000, 0xE07000, 0xE0B000, 0x60A000,
    0x00A070, 0x0070C0, 0x0000FF, 0xA000A0, 0xFF6060, 0xFFB060, 0xFFE060, 0xA0E060, 0x60E0C0, 0x60B0FF,
    0x8080FF, 0xE060E0, 0xFFE0E0, 0xFFF0E0, 0xFFFFE0, 0xF0FFE0, 0xE0FFF8, 0xE0F0FF, 0xE8E8FF, 0xFFE8FF};

QIcon swatch(const QColor &color, const QPalette &palette, QSize size, qreal ratio)
{
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(palette.color(QPalette::Mid)); // white must be seen on a white button
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    return pixmap;
}

} // namespace

ColorButton::ColorButton(QWidget *parent) : QPushButton(parent)
{
    setIconSize({36, 16});
    setAutoDefault(false);
    auto *menu = new QMenu(this);
    auto *action = new QWidgetAction(menu);
    action->setDefaultWidget(makePalette());
    menu->addAction(action);
    setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this] {
        m_entry->setText(m_color.name());
        m_entry->setFocus();
        m_entry->selectAll();
    });
    showColor();
}

QWidget *ColorButton::makePalette()
{
    auto *chart = new QWidget(this);
    auto *grid = new QGridLayout(chart);
    grid->setSpacing(2);
    int place = 0;
    for (const QRgb rgb : PaletteColors) {
        const QColor color(rgb);
        auto *button = new QToolButton(chart);
        button->setAutoRaise(true);
        button->setIconSize({18, 18});
        button->setIcon(swatch(color, palette(), button->iconSize(), devicePixelRatioF()));
        button->setAccessibleName(color.name());
        button->setObjectName(color.name());
        connect(button, &QToolButton::clicked, this, [this, color] { pick(color); });
        grid->addWidget(button, place / PaletteColumns, place % PaletteColumns);
        ++place;
    }
    m_entry = new QLineEdit(chart);
    m_entry->setObjectName(u"Farbwert"_s);
    m_entry->setAccessibleName(u"#rrggbb"_s);
    m_entry->setPlaceholderText(u"#rrggbb"_s);
    m_entry->setValidator(new QRegularExpressionValidator(QRegularExpression(u"#?[0-9A-Fa-f]{6}"_s), m_entry));
    connect(m_entry, &QLineEdit::returnPressed, this, [this] { // sent for a complete entry only
        const QString text = m_entry->text();
        pick(QColor(text.startsWith(u'#') ? text : u'#' + text));
    });
    grid->addWidget(m_entry, grid->rowCount(), 0, 1, PaletteColumns);
    return chart;
}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    showColor();
}

void ColorButton::pick(const QColor &color)
{
    menu()->close();
    setColor(color);
    Q_EMIT picked(color);
}

void ColorButton::showColor()
{
    setIcon(swatch(m_color, palette(), iconSize(), devicePixelRatioF()));
    setText(m_color.name());
}

void ColorButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showColor();
}

} // namespace kalvenor::settings
