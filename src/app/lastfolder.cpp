// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/lastfolder.h"

#include "platform/basic/path.h"
#include <QFileInfo>
#include <QSettings>

namespace kalvenor::app {

namespace {

const QString FolderKey = QStringLiteral("Programmordner");

QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Kalvenor"),
                     QStringLiteral("Kalvenor"));
}

} // namespace

bool hasHost(const QString &programFolder)
{
    const QString host = windowsPath(QFileInfo(programFolder).path());
    return !directoryListing(host + QStringLiteral("\\programm.ini")).isEmpty() ||
           !directoryListing(host + QStringLiteral("\\ADD-IN-LANGUAGE.MDB")).isEmpty();
}

QString startFolder(const QString &executableFolder)
{
    if (hasHost(executableFolder))
        return executableFolder;
    const QString last = userSettings().value(FolderKey).toString();
    return !last.isEmpty() && hasHost(last) ? last : executableFolder;
}

void rememberFolder(const QString &programFolder, const QString &executableFolder)
{
    if (programFolder != executableFolder && startFolder(executableFolder) != programFolder)
        userSettings().setValue(FolderKey, programFolder);
}

} // namespace kalvenor::app
