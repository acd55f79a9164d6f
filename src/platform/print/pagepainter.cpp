// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagepainter.h"

#include <QPainter>

namespace kalvenor {

void PagePainter::paint(QPainter &painter, const Page &page)
{
    for (const PlacedGround &ground : page.grounds)
        painter.fillRect(ground.area, m_faces[static_cast<std::size_t>(ground.style)].style().background);
    for (const PlacedPicture &picture : page.pictures) {
        // Paper is white, and a printed page knows no transparency.
        QImage opaque(picture.image.size(), QImage::Format_RGB32);
        opaque.fill(Qt::white);
        QPainter(&opaque).drawImage(0, 0, picture.image);
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
        painter.drawImage(picture.area, opaque);
    }
    QColor pen;
    for (const PlacedText &text : page.texts) {
        TextFace &face = m_faces[static_cast<std::size_t>(text.style)];
        const QColor color = face.style().color.isValid() ? face.style().color : QColor(Qt::black);
        if (color != pen) {
            painter.setPen(color);
            pen = color;
        }
        face.draw(painter, QPointF(static_cast<double>(text.x), static_cast<double>(text.baseline)), text.text,
                  static_cast<double>(text.width));
    }
}

} // namespace kalvenor
