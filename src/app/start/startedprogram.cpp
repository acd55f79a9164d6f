// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/startedprogram.h"

#include "language/texts/errormessage.h"

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

/// Somebody else has written to the file, or taken it away.
bool hasChanged(const dao::Database &database)
{
    try {
        return database.isStale();
    } catch (const basic::Error &) {
        return true;
    }
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

int StartedProgram::done()
{
    const std::vector<jet::Damage> damage = program.databases.damage();
    qint64 places = 0;
    for (const jet::Damage &kind : damage)
        places += kind.count;
    if (places > 0)
        desktop::writeError(program.language.text(Text::DamagedResult)
                                .arg(QString::number(places), language::damageLine(program.language, damage.front())));
    if (hasChanged(*program.databases.Familiendatenbank))
        desktop::writeError(program.language.text(Text::ChangedMeanwhile));
    return Done;
}

void printLine(const QString &line)
{
    desktop::writeOutput((line + u'\n').toUtf8());
    desktop::flushOutput();
}

} // namespace kalvenor::app
