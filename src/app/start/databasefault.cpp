// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/databasefault.h"

#include "language/forms/form.h"
#include "platform/storage/file.h"
#include <QFile>

namespace kalvenor::app {

namespace {

/// A database of a version that cannot be read, and no other kind of file: both begin with a name at byte 4.
bool isOtherVersion(const QString &nativeFile)
{
    QFile file(nativeFile);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray head = file.read(19).mid(4);
    return head == "Standard Jet DB" || head == "Standard ACE DB";
}

/// There and allowed, but not to be had: another program holds it.
bool isHeldElsewhere(const QString &nativeFile)
{
    return storage::File::open(nativeFile, storage::File::Mode::Read, nullptr).fault() == storage::FileFault::Other;
}

} // namespace

QString databaseFault(data::Session &session, const basic::Error &error, const QString &familienpfad)
{
    const host::Host &host = session.host;
    const QString &file = error.place();
    const bool isFamily = file == host.native(familienpfad);
    const auto text = [&session](qint16 id, const char *german) {
        return language::shownText(session.language, id, QString::fromUtf8(german));
    };
    switch (error.kind()) {
    case basic::ErrorKind::FileNotFound:
        if (isFamily && host.hasUnmappedDrive(familienpfad))
            return text(21205, "Die Familiendatenbank %1 ist nicht vorhanden.").arg(familienpfad) + u' ' +
                   text(21220, "Für das Laufwerk %1 ist kein Ordner bekannt. Nennen Sie ihn in %2, Abschnitt "
                               "[Laufwerke].")
                       .arg(familienpfad.left(2), host.native(host.ownSettingsFile()));
        if (isFamily)
            return text(21205, "Die Familiendatenbank %1 ist nicht vorhanden.").arg(file);
        if (file.endsWith(u"ADD-IN-LANGUAGE.MDB", Qt::CaseInsensitive))
            return text(21216, "Die Textdatenbank fehlt: %1").arg(file);
        return text(21040, "Die Datei wurde nicht gefunden: %1").arg(file);
    case basic::ErrorKind::FileUnreadable:
        if (isFamily && isHeldElsewhere(file))
            return text(21208, "Die Familiendatenbank ist gesperrt, weil ein anderes Programm sie allein benutzt.") +
                   u' ' +
                   text(21046, "Die Datei wird von einem anderen Programm benutzt. Schließen Sie sie dort und "
                               "versuchen Sie es noch einmal.");
        return text(21041, "Die Datei kann nicht gelesen werden: %1").arg(file);
    case basic::ErrorKind::NotADatabase:
        if (isOtherVersion(file))
            return text(21207, "Diese Datenbank hat ein Format, das nicht gelesen werden kann: %1").arg(file);
        if (isFamily)
            return text(21206, "Die Datei %1 ist keine Familiendatenbank.").arg(file);
        return text(21043, "Die Datei ist beschädigt: %1").arg(file);
    case basic::ErrorKind::TableNotFound:
        if (isFamily)
            return text(21206, "Die Datei %1 ist keine Familiendatenbank.").arg(file);
        // The engine names the table in quotation marks.
        return text(21048, "Die Tabelle %1 fehlt in %2. Die Installation des Hauptprogramms ist nicht vollständig.")
            .arg(error.text().section(u'"', 1, 1), file);
    case basic::ErrorKind::Damaged:
        return text(21043, "Die Datei ist beschädigt: %1").arg(file);
    default:
        return error.message();
    }
}

} // namespace kalvenor::app
