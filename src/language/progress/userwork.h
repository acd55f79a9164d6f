// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include "platform/desktop/work.h"
#include <functional>

namespace kalvenor::language {

/// How the user is told of the end of work that did not succeed.
struct WorkTold {
    std::function<void(const QString &)> said;                      ///< that it was cancelled, for the status bar
    std::function<QString(const basic::Error &)> inPlainWords = {}; ///< the failure's text; none: the error's own
    QString title = {};                                             ///< of the message box; none: "error"
    desktop::Work::Input input = desktop::Work::Input::CancelOnly;
};

/// Carries out work that the user asked for. What goes wrong in it is told once, in a message box, after the work has
/// ended. False where it was not begun, failed or was cancelled.
bool runAndTell(desktop::Work &work, const host::Host &host, Sprachmodul &texts, const QString &what,
                const desktop::Work::Task &task, const WorkTold &told);

} // namespace kalvenor::language
