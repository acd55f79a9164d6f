// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "host/host.h"
#include "language/events/ereignisart.h"
#include "language/texts/sprache.h"
#include "platform/dao/dao.h"
#include <functional>
#include <QString>

namespace kalvenor::app {

/// Everything that lives from start to end.
class Program {
public:
    /// `programFolder`: the program's own folder, in Windows notation.
    Program(const QString &programFolder, desktop::Desktop &desktop) : host(programFolder, desktop) {}

    dao::Engine engine;
    host::Host host;
    language::Sprachmodul language{host, engine};
    data::Datenbankmodul databases{host, engine};
    language::Ereignisarten events{host, engine}; ///< empty until they are needed

    /// A family database for this run, in Windows notation, that takes the place of the one that the host names.
    QString chosenFamily;

    /// Makes and shows the main window and gives it back; a command has none.
    using ShowMainWindow = std::function<host::Hauptform *()>;

    /// The start sequence. False where the family database is missing: message text 100 was shown and the program
    /// is to end. Errors of the language database and of the host's databases are not caught here.
    bool Main(const ShowMainWindow &showMainWindow = {});
};

} // namespace kalvenor::app
