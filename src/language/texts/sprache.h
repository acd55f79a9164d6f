// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/catalogue.h"
#include "language/texts/textfile.h"
#include "platform/dao/dao.h"
#include <memory>
#include <QLocale>
#include <QString>
#include <QVariant>

namespace kalvenor::language {

/// Identifiers from here on are the program's own; a host's database may lack them.
inline constexpr qint16 FirstOwnText = 20000;

/// How numbers and dates are written for the host's language: German, else English.
QLocale anzeigesprache(const host::Host &host);
/// The same for the catalogue's wording.
CatalogueLanguage catalogueLanguage(const host::Host &host);
/// A day number with its month in words, where no host's database is at hand.
QString dayInWords(qint64 dayNumber, CatalogueLanguage language);

/// The texts of the program: the table `Languages` of a language database, one column a language, looked up by text
/// identifier at the moment a text is shown. The table's current row moves with every lookup.
class Sprachmodul {
public:
    Sprachmodul(const host::Host &host, dao::Engine &engine) : m_host(host), m_engine(engine) {}

    /// Opens the language database (Windows notation) and its table `Languages`, replacing what was open.
    /// Throws the engine's Error.
    void spracheoeffnen(const basic::WindowsPath &file);

    /// The text in the current language, "????" where there is no such row, column or table. The placeholders
    /// #PROGNAME# and #APPNAME# are removed. An empty field gives null.
    QVariant sprachtext(qint16 id);
    /// The same, but one of our own (from FirstOwnText on) that the database lacks comes from the language's file in
    /// the resources or else from the catalogue: in German for a German host, in English for all others.
    QVariant shownText(qint16 id);
    /// shownText as plain text; null gives "". Places such as %1 are left for the caller to fill.
    QString text(Text id) { return shownText(static_cast<qint16>(id)).toString(); }

    /// A day number as the interface language writes it, its month in words: "2 January 1950".
    QString dayInWords(qint64 dayNumber);

    /// Closes every database of the engine, last first, then, where `name` is empty, opens the host's own
    /// language database "\language.mdb". Throws the engine's Error.
    void datenbankenschliessen(const QString &name);

private:
    QString ownText(qint16 id);

    const host::Host &m_host;
    dao::Engine &m_engine;
    std::shared_ptr<dao::Database> m_database;
    std::shared_ptr<dao::Recordset> m_languages;
    QString m_fileLanguage; ///< whose file was read
    TextFile m_file;
};

} // namespace kalvenor::language
