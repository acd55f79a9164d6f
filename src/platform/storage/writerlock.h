// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>

namespace kalvenor::storage {

/// Lets one of our programs at a time read, change and replace a file. The lock is a file beside it, ending in ".lock",
/// which is removed with the object; one that a killed program left is taken over.
class WriterLock {
public:
    /// Waits some seconds at most.
    explicit WriterLock(const QString &nativeFile);
    /// False where the folder cannot be written or somebody else holds the lock all the time.
    bool isHeld() const { return m_lock.isLocked(); }

private:
    QLockFile m_lock;
};

} // namespace kalvenor::storage
