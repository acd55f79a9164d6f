// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/lastfolder.h"

#include "platform/basic/path.h"
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

const QString FolderKey = u"Programmordner"_s;

QSettings userSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"Kalvenor"_s, u"Kalvenor"_s);
}

} // namespace

bool hasHost(const QString &programFolder)
{
    const basic::WindowsPath host = basic::windowsPath(QFileInfo(programFolder).path());
    return !basic::directoryListing(host + u"\\programm.ini"_s).isEmpty() ||
           !basic::directoryListing(host + u"\\ADD-IN-LANGUAGE.MDB"_s).isEmpty();
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
