// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/lineicon.h"
#include "platform/desktop/pathdata.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPalette>
#include <vector>

namespace kalvenor::desktop {
namespace {

TEST(PathData, SaysWhereAPathGoes)
{
    const struct {
        const char *data;
        QRectF extent;
        QPointF end;
    } rows[] = {{"M4 18V6H9L11 8.5", {4, 6, 7, 12}, {11, 8.5}},
                {" M 1,2 L-3-4 Z", {-3, -4, 4, 6}, {1, 2}},
                {"M0 0C0 4 8 4 8 0", {0, 0, 8, 3}, {8, 0}},
                {"M0 0Q4 8 8 0", {0, 0, 8, 4}, {8, 0}},
                {"M2 5A3 3 0 0 1 8 5", {2, 2, 6, 3}, {8, 5}},   // with the clock: above
                {"M2 5A3 3 0 0 0 8 5", {2, 5, 6, 3}, {8, 5}},   // below
                {"M5 2A3 3 0 1 1 2 5", {2, 2, 6, 6}, {2, 5}},   // three quarters
                {"M5 2A3 3 0 0 0 2 5", {2, 2, 3, 3}, {2, 5}},   // one
                {"M5 2A3 3 0 1 0 2 5", {-1, -1, 6, 6}, {2, 5}}, // three quarters of the other circle
                {"M5 2A3 3 0 0 1 2 5", {2, 2, 3, 3}, {2, 5}},
                {"", {}, {}},
                {"M1", {}, {}},
                {"M1 2l3 4", {}, {}},
                {"M1 2L3 x", {}, {}},
                {"M1 2A3 3 0 0 1 4", {}, {}}};
    for (const auto &[data, extent, end] : rows) {
        const QPainterPath path = pathFromData(data);
        const QRectF found = path.boundingRect();
        EXPECT_NEAR(found.left(), extent.left(), 0.01) << data;
        EXPECT_NEAR(found.top(), extent.top(), 0.01) << data;
        EXPECT_NEAR(found.width(), extent.width(), 0.01) << data;
        EXPECT_NEAR(found.height(), extent.height(), 0.01) << data;
        EXPECT_LT(QLineF(path.currentPosition(), end).length(), 0.01) << data;
    }
}

TEST(LineIcon, EachIsADrawingOfItsOwnThatFollowsPaletteAndSize)
{
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::blue);
    QGuiApplication::setPalette(palette);
    std::vector<QImage> seen;
    for (int i = 0; i <= static_cast<int>(LineIcon::TextColor); ++i) {
        const QIcon icon = lineIcon(static_cast<LineIcon>(i));
        const QImage image = icon.pixmap({48, 48}, 1).toImage();
        EXPECT_EQ(std::count(seen.begin(), seen.end(), image), 0) << i;
        seen.push_back(image);
        for (const double ratio : {1.0, 1.5, 2.0})
            EXPECT_EQ(icon.pixmap({16, 16}, ratio).toImage().width(), static_cast<int>(16 * ratio)) << i;
        const auto holds = [](const QImage &picture, QColor color) {
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixelColor(x, y) == color)
                        return true;
                }
            }
            return false;
        };
        EXPECT_TRUE(holds(image, Qt::red) && !holds(image, Qt::blue)) << i;
        const QImage disabled = icon.pixmap({48, 48}, 1, QIcon::Disabled).toImage();
        EXPECT_TRUE(holds(disabled, Qt::blue) && !holds(disabled, Qt::red)) << i;
    }
    EXPECT_EQ(lineIcon(LineIcon::TextColor, Qt::green).pixmap({48, 48}, 1).toImage().pixelColor(24, 40), Qt::green);
    QGuiApplication::setPalette(before);
}

} // namespace
} // namespace kalvenor::desktop
