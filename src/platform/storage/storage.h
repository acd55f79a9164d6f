// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <QString>
#include <QtGlobal>
#include <span>

// What the operating system does with files, one call each. Everybody else uses File and Replacement, which stand on
// this; a test can put a storage of its own underneath.
namespace kalvenor::storage {

/// Why a file could not be opened.
enum class FileFault { None, NotFound, IsFolder, PermissionDenied, ReadOnly, Other };

enum class OpenMode { Read, ReadWrite };

/// The system's number for a failure; 0 is success.
using SystemError = int;

/// What lock() answers where somebody else holds a part of the range; no number of a system.
inline constexpr SystemError LockedElsewhere = -1;

struct FileState {
    qint64 size = -1;       ///< bytes
    qint64 modifiedNs = -1; ///< last change in nanoseconds since 1970 (UTC), as fine as the file system keeps it
    quint64 identity = 0;   ///< another file, that has taken the name meanwhile, has another one
};

/// An open file; closed with the object, which gives up its locks.
class OpenFile {
public:
    OpenFile() = default;
    virtual ~OpenFile() = default;
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    virtual SystemError state(FileState &now) const = 0;
    /// How many bytes were read, perhaps fewer than asked for; 0 behind the end; a failure's SystemError negated.
    virtual qint64 read(qint64 offset, std::span<std::uint8_t> into) const = 0;
    /// How many bytes were written, perhaps fewer than asked for; a failure's SystemError negated.
    virtual qint64 write(qint64 offset, std::span<const std::uint8_t> bytes) = 0;
    /// Returns when the disk holds what was written.
    virtual SystemError sync() = 0;
    /// Locks a range for this file alone, without waiting. The range may lie behind the end.
    virtual SystemError lock(qint64 offset, qint64 length) = 0;
    virtual SystemError unlock(qint64 offset, qint64 length) = 0;
};

struct Opened {
    std::unique_ptr<OpenFile> file{}; ///< none where it could not be opened
    FileFault fault = FileFault::None;
    SystemError error = 0;
};

/// Paths are native.
class Storage {
public:
    Storage() = default;
    virtual ~Storage() = default;
    Storage(const Storage &) = delete;
    Storage &operator=(const Storage &) = delete;

    /// An existing regular file; it is never created or truncated.
    virtual Opened open(const QString &path, OpenMode mode) = 0;
    /// A new file for writing, with the permissions of `like` where that exists. Fails where `path` exists.
    virtual Opened create(const QString &path, const QString &like) = 0;
    /// Gives a file another name in the same folder, in place of a file of that name, in one step.
    virtual SystemError rename(const QString &from, const QString &to) = 0;
    virtual SystemError remove(const QString &path) = 0;
    /// Returns when the disk holds the names in the folder; at once where the file system cannot do that.
    virtual SystemError syncFolder(const QString &folder) = 0;
};

/// The operating system's own.
Storage &systemStorage();

/// Lets a write beyond the size that the user may give a file fail, and so be told, instead of ending the program.
void tellFileSizeLimit();

/// The one in use: the system's, but for tests.
Storage &currentStorage();

/// Puts another one in use and returns the former one. For tests.
Storage &exchangeStorage(Storage &other);

} // namespace kalvenor::storage
