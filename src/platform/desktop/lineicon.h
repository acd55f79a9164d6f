// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace kalvenor {

enum class LineIcon { Right, AllRight, Left, AllLeft, Undo, Redo, Reload, Quit, Keyboard, Clear, Find, Copy };

/// A line drawing, sharp at any size, in the colour that the palette gives to texts of buttons at that moment.
QIcon lineIcon(LineIcon which);

} // namespace kalvenor
