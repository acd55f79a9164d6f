// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartstyle.h"

#include <array>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double LineWidth = 2;

// The hues of Okabe and Ito, set apart in lightness as well, so that the first three differ in grey, too. The third is
// the quiet one: no hue, near the ground.
constexpr std::array<QRgb, SeriesColors> LightColors{0x005A9C, 0xDB8800, 0xB4B4B4, 0x00876A,
                                                     0x56B4E9, 0xB8460A, 0xCC79A7, 0xC9B800};
constexpr std::array<QRgb, SeriesColors> DarkColors{0x3D9AE0, 0xF5B83D, 0x5E5E5E, 0x1FB890,
                                                    0x9AD4F5, 0xE8713A, 0xD98FBA, 0xF0E442};
constexpr int QuietColor = 2;
constexpr int LineContrast = 160; ///< percent: a thin line near its ground would be lost
constexpr std::array LineStyles{Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};

template <typename Array>
auto cyclic(const Array &array, int index)
{
    return array[static_cast<std::size_t>(index) % array.size()];
}

QColor mixed(const QColor &one, const QColor &other, float part)
{
    const auto mix = [part](float a, float b) {
        return a + (b - a) * part;
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

} // namespace

QColor ChartStyle::seriesColor(int index) const
{
    return QColor::fromRgb(cyclic(dark ? DarkColors : LightColors, index));
}

QPen ChartStyle::linePen(int index) const
{
    QColor color = seriesColor(index);
    if (index % SeriesColors == QuietColor)
        color = dark ? color.lighter(LineContrast) : color.darker(LineContrast);
    return {color, LineWidth, cyclic(LineStyles, index), Qt::FlatCap, Qt::RoundJoin};
}

QPen ChartStyle::edgePen(const QColor &color) const
{
    return {dark ? color.lighter(130) : color.darker(150), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

ChartStyle paperStyle()
{
    QFont font(u"Arial"_s);
    font.setPixelSize(ChartTextPoints * 96 / 72);
    return {font, Qt::white, QColor(0x20, 0x20, 0x20), QColor(0xc8, 0xc8, 0xc8), false};
}

ChartStyle paletteStyle(const QPalette &palette, const QFont &font)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return {font, ground, text, mixed(ground, text, 0.25F), ground.lightnessF() < 0.5F};
}

} // namespace kalvenor::chart
