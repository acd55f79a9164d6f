// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/writerlock.h"

#include "platform/storage/gate.h"
#include <chrono>
#include <QDeadlineTimer>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kalvenor::storage {

namespace {

constexpr auto LongestHold = 10s; ///< whoever holds a lock longer is taken for dead; a write takes milliseconds
constexpr auto LongestWait = 12s;
constexpr auto BetweenAttempts = 3ms; ///< QLockFile's own waiting begins with 100 ms and doubles

} // namespace

WriterLock::WriterLock(const QString &nativeFile) : m_lock(withoutLinks(basic::NativePath(nativeFile)) + u".lock"_s)
{
    m_lock.setStaleLockTime(static_cast<int>(std::chrono::milliseconds(LongestHold).count()));
    const QDeadlineTimer deadline(LongestWait);
    while (!m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError && !deadline.hasExpired())
        std::this_thread::sleep_for(BetweenAttempts);
}

} // namespace kalvenor::storage
