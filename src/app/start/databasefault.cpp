// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/databasefault.h"

#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/storage/file.h"
#include <QFile>

namespace kalvenor::app {

using language::Text;

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
    return storage::File::open(basic::NativePath(nativeFile), storage::File::Mode::Read, nullptr).fault() ==
           storage::FileFault::Other;
}

} // namespace

QString databaseFault(data::Session &session, const basic::Error &error, const basic::WindowsPath &familienpfad)
{
    const host::Host &host = session.host;
    const QString &file = error.place().file;
    const bool isFamily = file == host.native(familienpfad);
    switch (error.kind()) {
    case basic::ErrorKind::FileNotFound:
        if (isFamily && host.hasUnmappedDrive(familienpfad))
            return session.language.text(Text::FamilyMissing).arg(familienpfad.text()) + u' ' +
                   session.language.text(Text::UnknownDrive)
                       .arg(familienpfad.text().left(2), host.native(host.ownSettingsFile()));
        if (isFamily)
            return session.language.text(Text::FamilyMissing).arg(file);
        if (file.endsWith(u"ADD-IN-LANGUAGE.MDB", Qt::CaseInsensitive))
            return session.language.text(Text::TextDatabaseMissing).arg(file);
        return session.language.text(Text::FileNotFound).arg(file);
    case basic::ErrorKind::FileUnreadable:
        if (isFamily && isHeldElsewhere(file))
            return session.language.text(Text::FamilyLocked) + u' ' + session.language.text(Text::FileInUse);
        return session.language.text(Text::FileNotReadable).arg(file);
    case basic::ErrorKind::NotADatabase:
        if (isOtherVersion(file) && error.fault() == basic::Fault::FileTooShort)
            return language::errorMessage(session.language, error); // what is left of a database
        if (isOtherVersion(file))
            return session.language.text(Text::UnknownDatabaseFormat).arg(file);
        if (isFamily)
            return session.language.text(Text::NoFamilyDatabase).arg(file);
        return session.language.text(Text::FileDamaged).arg(file);
    case basic::ErrorKind::TableNotFound:
        if (isFamily)
            return session.language.text(Text::NoFamilyDatabase).arg(file);
        return session.language.text(Text::HostTableMissing).arg(error.arguments().value(0), file);
    case basic::ErrorKind::Damaged:
        if (error.fault() == basic::Fault::FileCutShort)
            return language::errorMessage(session.language, error);
        return session.language.text(Text::FileDamaged).arg(file);
    default:
        return language::errorMessage(session.language, error);
    }
}

} // namespace kalvenor::app
