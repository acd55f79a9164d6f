// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/file.h"
#include "platform/storage/gate.h"
#include <QByteArray>
#include <QByteArrayView>

namespace kalvenor::storage {

/// The new content of a whole file. It is written beside the file and takes its place at the end, when the disk holds
/// it, so that a crash leaves the old or the new content and an object that goes without commit() leaves no trace. The
/// permissions stay; a symbolic link stays and its target is replaced. A failure is remembered: what follows it fails.
class Replacement {
public:
    /// `nativeFile` may be there or not. Fails where it cannot be written; throws as checkTarget.
    explicit Replacement(const basic::NativePath &nativeFile, Origin origin = Origin::Named);
    ~Replacement();
    Replacement(const Replacement &) = delete;
    Replacement &operator=(const Replacement &) = delete;

    bool hasFailed() const { return !m_error.isEmpty(); }
    bool append(QByteArrayView bytes);
    /// Syncs what was written and gives it the file's place. To be called once.
    bool commit();
    /// The reason of the first failure.
    const basic::Argument &errorText() const { return m_error; }

private:
    bool fail(const basic::Argument &reason);
    bool create();
    bool writeOut(QByteArrayView bytes);
    void drop();

    QString m_target; ///< where the content goes: what a link leads to
    QString m_beside;
    std::unique_ptr<OpenFile> m_file;
    qint64 m_size = 0; ///< bytes in the file beside
    QByteArray m_waiting;
    basic::Argument m_error;
};

/// The same for content that is at hand. On failure the old file is untouched and `whatFailed` (may be null) gets the
/// reason. Throws as checkTarget.
bool replaceFileSafely(const basic::NativePath &nativeFile, QByteArrayView content, basic::Argument *whatFailed,
                       Origin origin = Origin::Named);

} // namespace kalvenor::storage
