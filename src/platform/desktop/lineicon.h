// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

class QColor;

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
    Bold,
    Italic,
    Underline,
    StrikeOut,
    AlignLeft,
    AlignCentre,
    AlignRight,
    Justify,
    Bullets,
    Plain,
    TextColor,
    Values,
    Table,
    AllDown,
    AllUp,
    Funnel,
    Export,
};

/// A line drawing, sharp at any size, in the colour that the palette gives to texts of buttons at that moment.
QIcon lineIcon(LineIcon which);
/// The same with a bar of that colour at its foot, if it is valid.
QIcon lineIcon(LineIcon which, const QColor &bar);

} // namespace kalvenor::desktop
