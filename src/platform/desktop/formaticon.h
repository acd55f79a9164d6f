// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/lineicon.h"

namespace kalvenor::desktop {

/// The signs of a text editor's tools.
enum class FormatIcon { Bold, Italic, Underline, StrikeOut, Left, Centre, Right, Justify, Bullets, Plain };

QIcon formatIcon(FormatIcon which);
/// A letter over a bar of the colour; an invalid one gives it that of the letter.
QIcon colorIcon(const QColor &color);

} // namespace kalvenor::desktop
