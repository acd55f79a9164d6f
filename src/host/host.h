// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/path.h"
#include "platform/desktop/desktop.h"
#include <QString>
#include <vector>

namespace kalvenor::host {

using namespace Qt::StringLiterals;

class Hauptform;

/// The folder above: the characters before the last backslash ("C:\" gives "C:"). A path without a backslash throws
/// Error(InvalidProcedureCall); callers hold full paths.
basic::WindowsPath uebergeordnetesverzeichnis(const basic::WindowsPath &path);

/// The program-wide state that comes from the host program, and the access to profile files. One object for the life of
/// the process.
class Host {
public:
    /// `programFolder` is the program's own folder; its drive letters are mapped by `Kalvenor.ini` there, section
    /// "Laufwerke" (C=/media/windows), in UTF-8 or Windows-1252.
    Host(basic::WindowsPath programFolder, desktop::Desktop &desktop);

    basic::WindowsPath Hostverzeichnis; ///< the host program's folder, without a trailing backslash
    QString Sprache;      ///< name of the interface language: a column of the texts, a table of the event kinds
    qint16 Kurzhilfe = 1; ///< 1: short help is shown
    QString AddInonTop;   ///< as read; "1": windows stay on top
    basic::WindowsPath Familienpfad;                ///< the host's current family database; empty where none is named
    kalvenor::host::Hauptform *Hauptform = nullptr; ///< the main window while there is one

    const basic::WindowsPath &programFolder() const { return m_programFolder; }
    basic::WindowsPath hostSettingsFile() const { return Hostverzeichnis + u"\\programm.ini"_s; }
    basic::WindowsPath ownSettingsFile() const { return m_programFolder + u"\\Kalvenor.ini"_s; }
    desktop::Desktop &desktop() const { return m_desktop; }

    /// One value of a profile file, at most 255 characters, up to its first NUL; a missing file, section or key gives
    /// the default. Never fails.
    QString inilesen(const basic::WindowsPath &file, const QString &section, const QString &key,
                     const QString &fallback) const;
    /// A path of the host's settings: as inilesen() gives it, or its bytes read as UTF-8 where that alone names a file
    /// or folder that is there.
    basic::WindowsPath readPath(const basic::WindowsPath &file, const QString &section, const QString &key,
                                const basic::WindowsPath &fallback) const;
    /// Writes one value. As with the platform's own function nothing is reported on failure; the result says whether
    /// it was written, for callers that want to know.
    bool inischreiben(const basic::WindowsPath &file, const QString &section, const QString &key,
                      const QString &value) const;
    /// Several values in their order, all or none.
    struct Setting {
        QString section, key, value;
    };
    bool inischreiben(const basic::WindowsPath &file, const std::vector<Setting> &settings) const;

    /// Only when `AddInonTop` equals 1: puts the window on top of all others (`onTop` -1), back among them (0), or
    /// before its equals (any other value), keeping place and size. True when the window's place was changed.
    bool fensteroben(QWindow *form, int onTop, bool activate) const;
    bool staysOnTop() const;

    /// The native path for a path text, with the drive letters of this installation.
    basic::NativePath native(const basic::WindowsPath &path) const { return basic::nativePath(path, m_drives); }
    /// The path text for a native path.
    basic::WindowsPath windows(const QString &nativeFile) const { return basic::windowsPath(nativeFile, m_drives); }
    /// The path names a drive that no folder is known for, so that nothing can be found there.
    bool hasUnmappedDrive(const basic::WindowsPath &path) const
    {
        return kalvenor::basic::hasUnmappedDrive(path, m_drives);
    }
    /// The file's own name where exactly that file is there, else "".
    QString dir(const basic::WindowsPath &path) const { return basic::directoryListing(path, m_drives); }

private:
    basic::WindowsPath m_programFolder;
    desktop::Desktop &m_desktop;
    basic::DriveMap m_drives;
};

} // namespace kalvenor::host
