// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QStringView>
#include <utility>

// Paths are held in Windows notation and become native when a file is touched. Neither turns into the other unnoticed.
namespace kalvenor::basic {

/// A path as the system takes it: any function for native paths does.
class NativePath {
public:
    NativePath() = default;
    explicit NativePath(QString path) : m_path(std::move(path)) {}
    operator const QString &() const { return m_path; }
    const QString &text() const { return m_path; }
    bool isEmpty() const { return m_path.isEmpty(); }

private:
    QString m_path;
};

/// A path in Windows notation, as settings and templates hold it.
class WindowsPath {
public:
    WindowsPath() = default;
    explicit WindowsPath(QString text) : m_text(std::move(text)) {}
    const QString &text() const { return m_text; }
    bool isEmpty() const { return m_text.isEmpty(); }
    bool operator==(const WindowsPath &) const = default;
    friend WindowsPath operator+(const WindowsPath &path, const QString &more)
    {
        return WindowsPath(path.m_text + more);
    }

private:
    QString m_text;
};

/// Drive letter (upper case) to native folder, e.g. 'C' → "/media/windows".
using DriveMap = QMap<QChar, QString>;

/// The native path of a Windows path text. Backslashes become slashes; a text beginning with one backslash and no
/// drive letter is a native absolute path; "X:\…" starts at the mapped folder (unmapped: on Windows as it stands,
/// elsewhere below no folder, so that it is never found). Each component is taken exactly where it exists, else
/// without regard to case; a component that does not exist stays as written, so new files get the wished name.
/// A share ("\\server\…") only gets its slashes turned.
NativePath nativePath(const WindowsPath &windowsPath, const DriveMap &drives = {});

/// The path begins with a drive letter that no folder is known for; on Windows no path does.
bool hasUnmappedDrive(const WindowsPath &windowsPath, const DriveMap &drives);

/// The Windows notation of a native path (slashes become backslashes; a mapped folder becomes its drive).
WindowsPath windowsPath(const QString &nativePath, const DriveMap &drives = {});

/// The file's own name where a normal file (not a folder, not hidden) is exactly there, but for case; else "". * and ?
/// are characters like any other, and a path that ends in a separator names no file.
QString directoryListing(const WindowsPath &windowsPath, const DriveMap &drives = {});

/// What of a text may become part of a file name on every system: without separators and the other signs that Windows
/// refuses, without control characters, and without dots at its begin, so that it leads to no other folder.
QString fileNamePart(const QString &text);

} // namespace kalvenor::basic
