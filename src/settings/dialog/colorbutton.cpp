// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/colorbutton.h"

#include "platform/desktop/desktop.h"
#include <QColorDialog>
#include <QPainter>

namespace kalvenor::settings {

ColorButton::ColorButton(desktop::Desktop &desktop, QWidget *parent) : QPushButton(parent), m_desktop(desktop)
{
    setIconSize({36, 16});
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorButton::ask);
    setColor(Qt::black);
}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    QPixmap swatch(iconSize() * devicePixelRatioF());
    swatch.fill(color);
    QPainter painter(&swatch);
    painter.setPen(Qt::gray); // white must be seen on a white button
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    swatch.setDevicePixelRatio(devicePixelRatioF());
    setIcon(swatch);
    setText(color.name());
    setAccessibleDescription(color.name());
}

void ColorButton::ask()
{
    QColorDialog dialog(m_color, this);
    dialog.setWindowTitle(toolTip());
    if (!m_desktop.runDialog(dialog))
        return;
    setColor(dialog.currentColor());
    Q_EMIT picked(m_color);
}

} // namespace kalvenor::settings
