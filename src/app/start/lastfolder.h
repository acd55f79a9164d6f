// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

// The program folders that were used last, kept in the user's own settings (Kalvenor/Kalvenor.ini), for a
// program that is installed away from its host. All paths are native.
namespace kalvenor::app {

/// Whether a host's settings or texts lie above this program folder.
bool hasHost(const QString &programFolder);

/// The folder to start with where none is named: the executable's, or, where no host lies above that, the one used
/// last if its host is still there.
QString startFolder(const QString &executableFolder);
/// The folders used last, the latest first, whose hosts are still there.
QStringList recentFolders();
/// Keeps the folder as the latest, and for the next start unless startFolder() finds it anyway.
void rememberFolder(const QString &programFolder, const QString &executableFolder);

} // namespace kalvenor::app
