// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "language/events/ereignisart.h"
#include "language/texts/sprache.h"
#include <functional>
#include <QObject>

namespace kalvenor::data {

/// What lives from start to end: the host, its databases, texts and event kinds; and the news that the family database
/// was exchanged under the running program.
class Session : public QObject {
    Q_OBJECT
public:
    /// `programFolder`: the program's own folder, in Windows notation. Nothing is opened.
    Session(const basic::WindowsPath &programFolder, desktop::Desktop &desktop);

    dao::Engine engine;
    host::Host host;
    language::Sprachmodul language{host, engine};
    Datenbankmodul databases{host, engine};
    language::Ereignisarten events{host, engine}; ///< empty until they are needed

    /// Closes all databases and opens this family database (Windows notation) with the host's own ones, loads the event
    /// kinds again and does `first`, before anybody hears of it. The host's settings file is not changed. Where any of
    /// that fails, the former database is open again and the Error is thrown, with a remark where even that failed.
    void exchangeDatabase(const basic::WindowsPath &familienpfad, const std::function<void()> &first = {});
    /// Closes all databases. Throws the engine's Error.
    void close();

Q_SIGNALS:
    /// All databases are about to be closed: whoever holds rows lets go of them.
    void databaseClosing();
    /// They are open again: with another family database, or, after a failure, with the former one.
    void databaseExchanged(bool other);

private:
    void open(const basic::WindowsPath &familienpfad);
    [[noreturn]] void goBack(const basic::WindowsPath &former, const basic::Error &why);
};

} // namespace kalvenor::data
