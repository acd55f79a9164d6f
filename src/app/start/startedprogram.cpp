// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/startedprogram.h"

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

QString lookedFor(const host::Host &host)
{
    const QString &path = host.Familienpfad;
    if (path.isEmpty())
        return u"no family database is named in %1, section [QV-Files]"_s.arg(host.native(host.hostSettingsFile()));
    return host.hasUnmappedDrive(path) ? unknownDrive(host, path) : u"looked for %1"_s.arg(host.native(path));
}

} // namespace

StartedProgram::StartedProgram(const QString &programFolder) : program(programFolder, desktop), ready(program.Main())
{
    if (!ready)
        desktop::writeError(lookedFor(program.host) + u"; kalvenor check tells what is there"_s);
}

QString unknownDrive(const host::Host &host, const QString &path)
{
    return u"%1: no folder is known for the drive %2; name it in %3, section [Laufwerke], e.g. %4=/media/windows"_s.arg(
        path, path.left(2), host.native(host.ownSettingsFile()), path.left(1));
}

int StartedProgram::done() const
{
    const dao::Database &family = *program.databases.Familiendatenbank;
    const QStringList damage = family.warnings();
    if (!damage.isEmpty())
        desktop::writeError(u"%1 is damaged and what could not be read was left out, so the result is not "
                            "complete (%2 places, the first: %3); kalvenor check lists them"_s.arg(
                                family.file(), QString::number(damage.size()), damage.first()));
    return Done;
}

void printLine(const QString &line)
{
    desktop::writeOutput((line + u'\n').toUtf8());
    desktop::flushOutput();
}

} // namespace kalvenor::app
