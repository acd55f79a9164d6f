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
const QString RecentKey = u"ZuletztBenutzt"_s;
constexpr qsizetype RecentKept = 4;

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

QStringList recentFolders()
{
    QStringList folders = userSettings().value(RecentKey).toStringList();
    folders.removeIf([](const QString &folder) { return !hasHost(folder); });
    return folders;
}

void rememberFolder(const QString &programFolder, const QString &executableFolder)
{
    QStringList folders = recentFolders();
    folders.removeAll(programFolder);
    folders.prepend(programFolder);
    userSettings().setValue(RecentKey, folders.mid(0, RecentKept));
    if (programFolder != executableFolder && startFolder(executableFolder) != programFolder)
        userSettings().setValue(FolderKey, programFolder);
}

} // namespace kalvenor::app
