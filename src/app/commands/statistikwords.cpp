// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/statistikwords.h"

#include <QDir>

namespace kalvenor::app {

void StatistikWords::applyTo(statistics::Statistik &statistik) const
{
    statistik.titel = titel.value_or(statistik.titel);
    statistik.rtf = rtf.value_or(statistik.rtf);
    statistik.grafiktyp = grafiktyp.value_or(statistik.grafiktyp);
    statistik.legende = legende.value_or(statistik.legende);
    statistik.nachGeburtsjahr = nachGeburtsjahr.value_or(statistik.nachGeburtsjahr);
    statistik.geschlechtalter = geschlechtalter.value_or(statistik.geschlechtalter);
}

QString absoluteNative(const QString &path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

} // namespace kalvenor::app
