// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "platform/dao/dao.h"
#include <functional>
#include <memory>
#include <QString>
#include <QVariant>
#include <utility>

namespace kalvenor::language {

/// The texts of the program: the table `Languages` of a language database, one column a language, looked up by text
/// identifier at the moment a text is shown. The table's current row moves with every lookup.
class Sprachmodul {
public:
    Sprachmodul(const host::Host &host, dao::Engine &engine) : m_host(host), m_engine(engine) {}

    /// Opens the language database (Windows notation) and its table `Languages`, replacing what was open.
    /// Throws the engine's Error.
    void spracheoeffnen(const QString &file);

    /// The text in the current language, "????" where there is no such row, column or table. The placeholders
    /// #PROGNAME# and #APPNAME# are removed. An empty field gives null.
    QVariant sprachtext(qint16 id);
    /// The same as plain text; null gives "".
    QString text(qint16 id) { return sprachtext(id).toString(); }
    /// Texts for as long as no language database is open: a string, or null where there is none.
    void setSpareTexts(std::function<QVariant(qint16)> texts) { m_spareTexts = std::move(texts); }

    /// Closes every database of every workspace, last first, then, where `name` is empty, opens the host's own
    /// language database "\language.mdb". Throws the engine's Error.
    void datenbankenschliessen(const QString &name);

private:
    const host::Host &m_host;
    dao::Engine &m_engine;
    std::shared_ptr<dao::Database> m_database;
    std::shared_ptr<dao::Recordset> m_languages;
    std::function<QVariant(qint16)> m_spareTexts;
};

} // namespace kalvenor::language
