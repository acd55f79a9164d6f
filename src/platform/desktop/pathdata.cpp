// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/pathdata.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <QLineF>

namespace kalvenor::desktop {

namespace {

constexpr std::pair<char, std::size_t> Numbers[] = {{'M', 2}, {'L', 2}, {'H', 1}, {'V', 1},
                                                    {'C', 6}, {'Q', 4}, {'A', 7}, {'Z', 0}};

void skipBlanks(std::string_view &data)
{
    data.remove_prefix(std::min(data.find_first_not_of(" ,\n\t"), data.size()));
}

/// Whether the data begin with a number; it is taken from them.
bool takeNumber(std::string_view &data, double &number)
{
    skipBlanks(data);
    const auto [end, error] = std::from_chars(data.data(), data.data() + data.size(), number);
    if (error != std::errc())
        return false;
    data.remove_prefix(static_cast<std::size_t>(end - data.data()));
    return true;
}

/// On one of the two circles through both places, on its longer or shorter part, with the clock or against it.
void addArc(QPainterPath &path, double radius, bool longer, bool withClock, QPointF to)
{
    const QLineF chord(path.currentPosition(), to);
    const double half = chord.length() / 2;
    if (half == 0)
        return;
    radius = std::max(radius, half);
    const double aside = std::sqrt(radius * radius - half * half) * (longer == withClock ? -1 : 1);
    const QPointF centre = chord.center() + QPointF(-chord.dy(), chord.dx()) * aside / chord.length();
    const double begin = QLineF(centre, chord.p1()).angle();
    double sweep = QLineF(centre, to).angle() - begin; // against the clock
    if (withClock && sweep > 0)
        sweep -= 360;
    else if (!withClock && sweep < 0)
        sweep += 360;
    path.arcTo(QRectF(centre - QPointF(radius, radius), QSizeF(radius, radius) * 2), begin, sweep);
}

} // namespace

QPainterPath pathFromData(std::string_view data)
{
    QPainterPath path;
    for (skipBlanks(data); !data.empty(); skipBlanks(data)) {
        const char letter = data.front();
        data.remove_prefix(1);
        const auto *known = std::find_if(std::begin(Numbers), std::end(Numbers),
                                         [letter](const auto &each) { return each.first == letter; });
        if (known == std::end(Numbers))
            return {};
        std::array<double, 7> n{};
        for (std::size_t i = 0; i < known->second; ++i) {
            if (!takeNumber(data, n[i]))
                return {};
        }
        switch (letter) {
        case 'M':
            path.moveTo(n[0], n[1]);
            break;
        case 'L':
            path.lineTo(n[0], n[1]);
            break;
        case 'H':
            path.lineTo(n[0], path.currentPosition().y());
            break;
        case 'V':
            path.lineTo(path.currentPosition().x(), n[0]);
            break;
        case 'C':
            path.cubicTo(n[0], n[1], n[2], n[3], n[4], n[5]);
            break;
        case 'Q':
            path.quadTo(n[0], n[1], n[2], n[3]);
            break;
        case 'A': // two radii, the turn of an ellipse, two flags, the end
            addArc(path, n[0], n[3] != 0, n[4] != 0, {n[5], n[6]});
            break;
        default:
            path.closeSubpath();
        }
    }
    return path;
}

} // namespace kalvenor::desktop
