// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagepainter.h"

#include <QPainter>

namespace kalvenor::print {

void PagePainter::paint(QPainter &painter, const Page &page)
{
    for (const PlacedGround &ground : page.grounds)
        painter.fillRect(ground.area, m_faces[static_cast<std::size_t>(ground.style)].style().background);
    if (!page.pictures.empty())
        painter.setRenderHints(QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    for (const PlacedPicture &picture : page.pictures)
        painter.drawImage(picture.area, picture.image);
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

} // namespace kalvenor::print
