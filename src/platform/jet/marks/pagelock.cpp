// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/marks/pagelock.h"

#include <chrono>
#include <QDeadlineTimer>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kalvenor::jet {

namespace {

constexpr auto LongestWait = 1s;
constexpr auto BetweenAttempts = 3ms;

constexpr qint64 FirstPage = 0x20000001;
constexpr qint64 BytesAPage = 0x200;
constexpr qint64 LockedBytes = 256; ///< the engine adds its number among the users; we are none of them
/// Windows keeps others from reading what is locked.
constexpr qint64 BehindAnyFile = qint64{1} << 32;

qint64 rangeOf(std::uint32_t page)
{
    return FirstPage + page * BytesAPage;
}

} // namespace

PageLocks::PageLocks(storage::File &database, const QString &nativePath) : m_database(database)
{
    const QString withoutEnding = nativePath.left(nativePath.lastIndexOf(u'.'));
    for (const QString &ending : {u".ldb"_s, u".LDB"_s}) {
        storage::File file =
            storage::File::open(basic::NativePath(withoutEnding + ending), storage::File::Mode::ReadWrite, nullptr);
        // One that is there but closed to this user is what somebody else's session left.
        if (file.isOpen()) {
            m_lockFile = std::move(file);
            return;
        }
    }
}

bool PageLocks::take(std::uint32_t page)
{
    using Lock = storage::File::Lock;
    const QDeadlineTimer deadline(LongestWait);
    while (true) {
        const Lock engine = m_lockFile ? m_lockFile->lock(rangeOf(page), LockedBytes) : Lock::Taken;
        if (engine != Lock::HeldElsewhere) {
            if (m_database.lock(BehindAnyFile + rangeOf(page), LockedBytes) != Lock::HeldElsewhere)
                return true;
            if (m_lockFile)
                m_lockFile->unlock(rangeOf(page), LockedBytes);
        }
        if (deadline.hasExpired())
            return false;
        std::this_thread::sleep_for(BetweenAttempts);
    }
}

void PageLocks::release(std::uint32_t page)
{
    m_database.unlock(BehindAnyFile + rangeOf(page), LockedBytes);
    if (m_lockFile)
        m_lockFile->unlock(rangeOf(page), LockedBytes);
}

} // namespace kalvenor::jet
