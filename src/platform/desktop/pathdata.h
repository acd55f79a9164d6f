// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <string_view>

namespace kalvenor::desktop {

/// A path from SVG path data: "M4 18V6H9L11 8.5Z". Known are M, L, H, V, C, Q, A and Z with absolute places, each with
/// its letter, and of arcs those of circles. Empty where the data are anything else.
QPainterPath pathFromData(std::string_view data);

} // namespace kalvenor::desktop
