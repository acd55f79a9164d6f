// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/progresspanel.h"

namespace kalvenor::app {
using language::ProgressPanel;
}
