// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QStringView>

// Paths are held in Windows notation and become native when a file is touched.
namespace kalvenor::basic {

/// Drive letter (upper case) to native folder, e.g. 'C' → "/media/windows".
using DriveMap = QMap<QChar, QString>;

/// The native path of a Windows path text. Backslashes become slashes; a text beginning with one backslash and no
/// drive letter is a native absolute path; "X:\…" starts at the mapped folder (unmapped: on Windows as it stands,
/// elsewhere below no folder, so that it is never found). Each component is taken exactly where it exists, else
/// without regard to case; a component that does not exist stays as written, so new files get the wished name.
/// A share ("\\server\…") only gets its slashes turned.
QString nativePath(const QString &windowsPath, const DriveMap &drives = {});

/// The path begins with a drive letter that no folder is known for; on Windows no path does.
bool hasUnmappedDrive(const QString &windowsPath, const DriveMap &drives);

/// The Windows notation of a native path (slashes become backslashes; a mapped folder becomes its drive).
QString windowsPath(const QString &nativePath, const DriveMap &drives = {});

/// The file's own name where a normal file (not a folder, not hidden) is exactly there, but for case; else "". * and ?
/// are characters like any other, and a path that ends in a separator names no file.
QString directoryListing(const QString &windowsPath, const DriveMap &drives = {});

/// What of a text may become part of a file name on every system: without separators and the other signs that Windows
/// refuses, without control characters, and without dots at its begin, so that it leads to no other folder.
QString fileNamePart(const QString &text);

} // namespace kalvenor::basic
