// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/basic/path.h"
#include "platform/storage/storage.h"

namespace kalvenor::storage {

/// An open file for reads and writes at given places. It is closed with the object. Paths are native.
class File {
public:
    using Mode = OpenMode;
    enum class Lock { Taken, HeldElsewhere, Failed };

    /// Opens an existing file; it is never created or truncated. On failure isOpen() is false, fault() names the kind
    /// and `error` (may be null) gets the reason, without the path.
    static File open(const basic::NativePath &nativePath, Mode mode, basic::Argument *error);

    bool isOpen() const { return m_open != nullptr; }
    FileFault fault() const { return m_fault; }
    /// As of now; nothing is known (size -1) on failure.
    FileState state() const;
    /// Bytes, as of now; -1 on failure.
    qint64 size() const { return state().size; }
    /// Fills the whole span; false where the file ends before it (errorText() says so) or reading fails.
    bool readAt(qint64 offset, std::span<std::uint8_t> into) const;
    /// Writes the whole span; false on failure, some of it may then have been written.
    bool writeAt(qint64 offset, std::span<const std::uint8_t> bytes);
    /// Returns when the disk holds what was written.
    bool sync();
    /// Locks a range of bytes against all other programs that lock, without waiting; it may lie behind the end.
    Lock lock(qint64 offset, qint64 length);
    bool unlock(qint64 offset, qint64 length);
    /// The reason of the last failure.
    const basic::Argument &errorText() const { return m_error; }

private:
    bool succeeds(SystemError error) const;

    std::unique_ptr<OpenFile> m_open;
    FileFault m_fault = FileFault::None;
    mutable basic::Argument m_error;
};

} // namespace kalvenor::storage
