// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/startedprogram.h"

using namespace Qt::StringLiterals;

namespace kalvenor::app {

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
