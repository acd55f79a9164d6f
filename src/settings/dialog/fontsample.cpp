// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/fontsample.h"

#include <algorithm>
#include <QPainter>

namespace kalvenor::settings {

namespace {

constexpr double TwipsPerInch = 1440;

}

FontSample::FontSample(QWidget *parent) : QWidget(parent)
{
    setMinimumHeight(70);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FontSample::setText(const QString &text)
{
    m_text = text;
    setAccessibleName(text);
    update();
}

void FontSample::setStyle(const print::TextStyle &style)
{
    m_face.emplace(style);
    update();
}

void FontSample::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!m_face)
        return;
    painter.setClipRect(rect().adjusted(1, 1, -1, -1));
    painter.setRenderHint(QPainter::Antialiasing); // else thin underlines vanish
    const double scale = logicalDpiY() / TwipsPerInch;
    painter.scale(scale, scale);
    const double roomWidth = width() / scale;
    const QString text = m_face->elided(m_text, roomWidth * 0.95);
    const double textWidth = m_face->width(text);
    const double left = (roomWidth - textWidth) / 2;
    const double top = (height() / scale - m_face->lineHeight()) / 2;
    if (m_face->style().background.isValid())
        painter.fillRect(QRectF(left, top, textWidth, m_face->lineHeight()), m_face->style().background);
    painter.setPen(m_face->style().color.isValid() ? m_face->style().color : QColor(Qt::black));
    m_face->draw(painter, {left, top + m_face->ascent()}, text, textWidth);
}

} // namespace kalvenor::settings
