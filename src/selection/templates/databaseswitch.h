// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "language/texts/sprache.h"
#include <functional>

namespace kalvenor::selection {

/// What changing the family database works with.
struct DatabaseServices {
    host::Host &host;
    language::Sprachmodul &language;
    data::Datenbankmodul &databases;
    /// All databases are about to be closed: whoever shows persons lets go of them.
    std::function<void()> closing = {};
    /// They are open again, the new one or, after a failure, the former one: the event kinds are loaded again.
    std::function<void()> opened = {};
};

/// Goes over to another family database, and back where something fails.
class DatabaseSwitch {
public:
    /// Nothing is closed yet; the open database is the one to go back to.
    explicit DatabaseSwitch(DatabaseServices services);

    /// Closes all databases and opens this family database (Windows notation) with the host's own ones. The host's
    /// settings file is not changed. Throws as the engine; then goBack() is to be called.
    void goOver(const QString &familienpfad);
    /// Throws `why` again once the former database is open; where it cannot be opened, with a remark.
    [[noreturn]] void goBack(const basic::Error &why);

private:
    void open(const QString &familienpfad);

    DatabaseServices m_services;
    QString m_former;
    bool m_changed = false;
};

} // namespace kalvenor::selection
