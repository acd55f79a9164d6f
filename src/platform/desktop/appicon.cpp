// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/appicon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

// A static library's resources are not found by themselves; the macro must stand outside of any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(icon);
}

namespace kalvenor::desktop {

QIcon applicationIcon()
{
    initResources();
    QSvgRenderer drawing(u":/kalvenor.svg"_s);
    QIcon icon;
    for (const int side : {16, 20, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace kalvenor::desktop
