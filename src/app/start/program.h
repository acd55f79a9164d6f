// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include <functional>
#include <QString>

namespace kalvenor::app {

/// The session with its start sequence.
class Program : public data::Session {
public:
    using Session::Session;

    /// A family database for this run that takes the place of the one that the host names.
    basic::WindowsPath chosenFamily;

    /// Makes and shows the main window and gives it back; a command has none.
    using ShowMainWindow = std::function<host::Hauptform *()>;

    /// The start sequence. False where the family database is missing: message text 100 was shown and the program
    /// is to end. Errors of the language database and of the host's databases are not caught here.
    bool Main(const ShowMainWindow &showMainWindow = {});
};

} // namespace kalvenor::app
