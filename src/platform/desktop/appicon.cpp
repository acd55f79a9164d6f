// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/appicon.h"

#include "platform/desktop/pathdata.h"
#include <QColor>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QXmlStreamReader>
#include <vector>

using namespace Qt::StringLiterals;

// A static library's resources are not found by themselves; the macro must stand outside of any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(icon);
}

namespace kalvenor::desktop {

namespace {

constexpr qreal Field = 64; // units that the drawing is wide and high

struct FilledPath {
    QPainterPath path;
    QColor fill;
};

/// The drawing is made of filled paths alone.
std::vector<FilledPath> drawing()
{
    initResources();
    QFile file(u":/kalvenor.svg"_s);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    std::vector<FilledPath> paths;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "path"_L1)
            paths.push_back({pathFromData(xml.attributes().value("d"_L1).toLatin1().toStdString()),
                             QColor(xml.attributes().value("fill"_L1))});
    }
    return paths;
}

} // namespace

QIcon applicationIcon()
{
    const std::vector<FilledPath> paths = drawing();
    QIcon icon;
    for (const int side : {16, 20, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(side / Field, side / Field);
        for (const FilledPath &each : paths)
            painter.fillPath(each.path, each.fill);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace kalvenor::desktop
