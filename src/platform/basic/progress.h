// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QtGlobal>

namespace kalvenor::basic {

/// Long work reports here: steps done of steps in all. Returning false asks for an end; the work then
/// throws Error(Cancelled) at its next safe point. An empty function means nobody watches.
using Progress = std::function<bool(qint64 done, qint64 total)>;

} // namespace kalvenor::basic
