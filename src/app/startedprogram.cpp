// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startedprogram.h"

namespace kalvenor::app {

int StartedProgram::done() const
{
    const dao::Database &family = *program.databases.Familiendatenbank;
    const QStringList damage = family.warnings();
    if (!damage.isEmpty())
        writeError(QStringLiteral("%1 is damaged and what could not be read was left out, so the result is not "
                                  "complete (%2 places, the first: %3); kalvenor check lists them")
                       .arg(family.file(), QString::number(damage.size()), damage.first()));
    return Done;
}

void printLine(const QString &line)
{
    writeOutput((line + u'\n').toUtf8());
    flushOutput();
}

} // namespace kalvenor::app
