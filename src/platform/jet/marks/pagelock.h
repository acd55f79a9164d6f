// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/file.h"
#include <cstdint>
#include <optional>

namespace kalvenor::jet {

/// The locks that keep other writers away from single pages of a database, one page at a time. Two are taken: the
/// engine's own, where its lock file ("x.ldb" beside "x.mdb") is there, and one on the database itself, behind the
/// largest size a file can have, which another program of ours respects. No lock file is ever made.
///
/// The engine's ranges are published for Jet 3: Kevin Collins, "Understanding Microsoft Jet Locking" (1995, 1996 for
/// Jet 3.5): the write lock of a page begins at 0x20000001 + page * 0x200 and spans 256 bytes and the holder's number.
/// That Jet 4 locks pages there too is not published, and where it locks single rows instead is not known.
class PageLocks {
public:
    /// `database` is open for writing and outlives the object; `nativePath` is its name.
    PageLocks(storage::File &database, const QString &nativePath);

    /// Waits up to a second. False where another program holds the page all the time. True also on a file system that
    /// knows no locks.
    bool take(std::uint32_t page);
    void release(std::uint32_t page);

private:
    storage::File &m_database;
    std::optional<storage::File> m_lockFile; ///< the engine's
};

/// One page, as long as the object lives.
class PageLock {
public:
    PageLock(PageLocks &locks, std::uint32_t page) : m_locks(locks), m_page(page), m_isHeld(locks.take(page)) {}
    ~PageLock()
    {
        if (m_isHeld)
            m_locks.release(m_page);
    }
    PageLock(const PageLock &) = delete;
    PageLock &operator=(const PageLock &) = delete;

    bool isHeld() const { return m_isHeld; }

private:
    PageLocks &m_locks;
    std::uint32_t m_page;
    bool m_isHeld;
};

} // namespace kalvenor::jet
