// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/startedprogram.h"

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;
using language::wording;

namespace {

QString lookedFor(const host::Host &host, language::CatalogueLanguage language)
{
    const basic::WindowsPath &path = host.Familienpfad;
    if (path.isEmpty())
        return wording(Text::NoFamilyNamed, language).arg(host.native(host.hostSettingsFile()) + u" [QV-Files]"_s);
    return host.hasUnmappedDrive(path) ? unknownDrive(host, path, language)
                                       : wording(Text::LookedFor, language).arg(host.native(path));
}

} // namespace

StartedProgram::StartedProgram(const basic::WindowsPath &programFolder)
    : program(programFolder, desktop), ready(program.Main())
{
    if (!ready) {
        const auto language = language::catalogueLanguage(program.host);
        desktop::writeError(lookedFor(program.host, language) + u' ' + wording(Text::SeeCheck, language));
    }
}

QString unknownDrive(const host::Host &host, const basic::WindowsPath &path, language::CatalogueLanguage language)
{
    return path.text() + u": "_s +
           wording(Text::UnknownDrive, language).arg(path.text().left(2), host.native(host.ownSettingsFile()));
}

QString progressLine(const QString &what, language::CatalogueLanguage language)
{
    return wording(Text::CommandProgress, language).arg(what);
}

QString StartedProgram::progress(Text what)
{
    return progressLine(program.language.text(what), language::catalogueLanguage(program.host));
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
