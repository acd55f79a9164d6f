// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace kalvenor::desktop {

/// The program's icon, drawn sharp for each usual size.
QIcon applicationIcon();

} // namespace kalvenor::desktop
