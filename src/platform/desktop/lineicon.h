// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>

class QPainterPath;

namespace kalvenor::desktop {

enum class LineIcon {
    Right,
    AllRight,
    Left,
    AllLeft,
    Undo,
    Redo,
    Reload,
    Quit,
    Keyboard,
    Clear,
    Find,
    Copy,
    First,
    Last,
    Up,
    Down,
    Plus,
    Minus,
    Print,
    Save,
    Sliders,
    Page,
    Open,
    Reset,
    Preview,
    Help,
};

/// A line drawing, sharp at any size, in the colour that the palette gives to texts of buttons at that moment.
QIcon lineIcon(LineIcon which);
/// The same for a drawing on a field of 24 × 24 units; a valid colour adds a bar of that colour at its foot.
QIcon pathIcon(const QPainterPath &path, const QColor &bar = {});

} // namespace kalvenor::desktop
