// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <span>

// Profile (INI) files with the semantics of GetPrivateProfileStringA and WritePrivateProfileStringA.
// Behaviour after github.com/WelliSolutions/IniFileFormatReverseEngineering and Microsoft's documentation.
namespace kalvenor::profile {

/// One value of a profile file: at most size-1 bytes. Never fails; a missing file, section or key gives the default
/// (without its trailing blanks). `nativeFile` is a native path; "" gives the default.
QByteArray getPrivateProfileString(const QByteArray &section, const QByteArray &key, const QByteArray &fallback,
                                   int size, const QString &nativeFile);

/// Writes one value; no value deletes the key, no key deletes the section. Everything else in the file stays byte for
/// byte. False where the file cannot be written; the old file is then untouched.
bool writePrivateProfileString(const QByteArray &section, const std::optional<QByteArray> &key,
                               const std::optional<QByteArray> &value, const QString &nativeFile);

struct ProfileValue {
    QByteArray section, key, value;
};

/// Writes the values in their order as single writes would, but the file changes once: all of them or none. False where
/// it cannot be written.
bool writePrivateProfileStrings(std::span<const ProfileValue> values, const QString &nativeFile);

} // namespace kalvenor::profile
