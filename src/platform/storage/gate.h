// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/file.h"
#include <QString>

// Which files of others ours may never take the place of. Replacement asks this for every file.
namespace kalvenor::storage {

/// Who chose the name of a file that is to be written.
enum class Origin {
    Named,    ///< a person: a link is followed
    Settings, ///< a profile file that the program knows by its place: a link is followed, the host's own file may be
              ///< meant
    Beside,   ///< the program, for a file that belongs to another one: nothing goes through a link
    NewHost,  ///< a host installation is being made in an empty folder: databases are meant
};

/// What the last of the links leads to, whether it is there or not.
QString withoutLinks(const basic::NativePath &nativeFile);

/// Throws Error(Refused) where the file is a database by its name or its first bytes, is called as the host's settings
/// file, or is a link and nobody named it. Looks at what a link leads to; a hard link to a database has its first
/// bytes. For a look ahead: Replacement makes both checks itself.
void checkTarget(const basic::NativePath &nativeFile, Origin origin);

/// The part of it that needs no file.
void checkNames(const basic::NativePath &nativeFile, Origin origin);
/// The other part: throws where `old`, the file that is to be replaced, holds a database. False where reading fails.
bool checkContent(const basic::NativePath &nativeFile, const File &old, Origin origin);

} // namespace kalvenor::storage
