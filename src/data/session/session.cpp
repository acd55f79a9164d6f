// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/session/session.h"

#include "platform/basic/error.h"
#include <new>

using namespace Qt::StringLiterals;

namespace kalvenor::data {

Session::Session(const basic::WindowsPath &programFolder, desktop::Desktop &desktop) : host(programFolder, desktop)
{
}

void Session::exchangeDatabase(const basic::WindowsPath &familienpfad, const std::function<void()> &first)
{
    const basic::WindowsPath former = host.Familienpfad;
    try {
        open(familienpfad);
        if (first)
            first();
    } catch (const basic::Error &error) {
        goBack(former, error);
    } catch (const std::bad_alloc &) {
        goBack(former, basic::Error(basic::Fault::OutOfMemory));
    }
    Q_EMIT databaseExchanged(true);
}

void Session::goBack(const basic::WindowsPath &former, const basic::Error &why)
{
    try {
        open(former);
    } catch (const basic::Error &error) {
        Q_EMIT databaseExchanged(false); // nobody may go on showing what was
        throw why.with(basic::Fault::FormerNotReopened).with(error);
    }
    Q_EMIT databaseExchanged(false);
    throw why;
}

void Session::open(const basic::WindowsPath &familienpfad)
{
    Q_EMIT databaseClosing();
    language.datenbankenschliessen(familienpfad.text()); // a name: the host's own texts stay closed
    databases.datenbankoeffnen(familienpfad);
    language.spracheoeffnen(host.Hostverzeichnis + u"\\ADD-IN-LANGUAGE.MDB"_s);
    host.Familienpfad = familienpfad;
    events.ereignis_art_laden();
}

void Session::close()
{
    Q_EMIT databaseClosing();
    language.datenbankenschliessen({});
}

} // namespace kalvenor::data
