// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QByteArrayView>
#include <QString>
#include <span>

// Files by the operating system's own calls: random access without truncation, and replacement in one step.
namespace kalvenor::storage {

/// Why a file could not be opened.
enum class FileFault { None, NotFound, IsFolder, PermissionDenied, ReadOnly, Other };

/// An open file for reads and writes at given places. It is closed with the object. Paths are native.
class File {
public:
    enum class Mode { Read, ReadWrite };

    /// Opens an existing file; it is never created or truncated. On failure isOpen() is false, fault() names the kind
    /// and `error` (may be null) gets the reason in plain words, without the path.
    static File open(const QString &nativePath, Mode mode, QString *error);

    File() = default;
    ~File();
    File(File &&other) noexcept;
    File &operator=(File &&other) noexcept;
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    bool isOpen() const { return m_handle != Closed; }
    FileFault fault() const { return m_fault; }
    /// Bytes, as of now; -1 on failure.
    qint64 size() const;
    /// Last change as of now in nanoseconds since 1970 (UTC), as fine as the file system keeps it; -1 on failure.
    qint64 modifiedNs() const;
    /// Fills the whole span; false where the file ends before it (errorText() says so) or reading fails.
    bool readAt(qint64 offset, std::span<std::uint8_t> into) const;
    /// Writes the whole span; false on failure, some of it may then have been written.
    bool writeAt(qint64 offset, std::span<const std::uint8_t> bytes);
    /// Returns when the disk holds what was written.
    bool sync();
    /// The reason of the last failure in plain words.
    const QString &errorText() const { return m_error; }

private:
    static constexpr std::intptr_t Closed = -1;

    void close();

    std::intptr_t m_handle = Closed; ///< file descriptor, or HANDLE on Windows
    FileFault m_fault = FileFault::None;
    mutable QString m_error;
};

/// Writes `content` beside the file, syncs it and renames it over the file (made where there was none), so that a crash
/// leaves the old or the new content. The mode stays; a symbolic link stays and its target is replaced. On failure the
/// old file is untouched and `whatFailed` (may be null) gets the reason.
bool replaceFileSafely(const QString &nativeFile, QByteArrayView content, QString *whatFailed);

} // namespace kalvenor::storage
