// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/file.h"

using namespace Qt::StringLiterals;

namespace kalvenor::storage {

namespace {

basic::Argument reasonOf(FileFault fault, SystemError error)
{
    switch (fault) {
    case FileFault::None:
        return {};
    case FileFault::NotFound:
        return basic::Fault::WordNoFile;
    case FileFault::IsFolder:
        return basic::Fault::WordIsFolder;
    case FileFault::PermissionDenied:
        return basic::Fault::WordNotPermitted;
    case FileFault::ReadOnly:
        return basic::Fault::WordReadOnly;
    case FileFault::Other:
        break;
    }
    return qt_error_string(error);
}

} // namespace

File File::open(const basic::NativePath &nativePath, Mode mode, basic::Argument *error)
{
    Opened opened = currentStorage().open(nativePath, mode);
    Q_ASSERT((opened.file != nullptr) == (opened.fault == FileFault::None));
    File file;
    file.m_open = std::move(opened.file);
    file.m_fault = opened.fault;
    file.m_error = reasonOf(opened.fault, opened.error);
    if (error && !file.isOpen())
        *error = file.m_error;
    return file;
}

bool File::succeeds(SystemError error) const
{
    if (error != 0)
        m_error = qt_error_string(error);
    return error == 0;
}

FileState File::state() const
{
    Q_ASSERT(isOpen());
    FileState now;
    return succeeds(m_open->state(now)) ? now : FileState();
}

bool File::readAt(qint64 offset, std::span<std::uint8_t> into) const
{
    Q_ASSERT(isOpen());
    while (!into.empty()) {
        const qint64 count = m_open->read(offset, into);
        Q_ASSERT(count <= static_cast<qint64>(into.size()));
        if (count == 0)
            m_error = basic::Fault::WordFileEnds;
        if (count <= 0)
            return count == 0 ? false : succeeds(static_cast<SystemError>(-count));
        into = into.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
    return true;
}

bool File::writeAt(qint64 offset, std::span<const std::uint8_t> bytes)
{
    Q_ASSERT(isOpen());
    while (!bytes.empty()) {
        const qint64 count = m_open->write(offset, bytes);
        Q_ASSERT(count != 0 && count <= static_cast<qint64>(bytes.size()));
        if (count < 0)
            return succeeds(static_cast<SystemError>(-count));
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
    return true;
}

bool File::sync()
{
    Q_ASSERT(isOpen());
    return succeeds(m_open->sync());
}

File::Lock File::lock(qint64 offset, qint64 length)
{
    Q_ASSERT(isOpen());
    const SystemError error = m_open->lock(offset, length);
    if (error == LockedElsewhere) {
        m_error = basic::Fault::WordLockedElsewhere;
        return Lock::HeldElsewhere;
    }
    return succeeds(error) ? Lock::Taken : Lock::Failed;
}

bool File::unlock(qint64 offset, qint64 length)
{
    Q_ASSERT(isOpen());
    return succeeds(m_open->unlock(offset, length));
}

} // namespace kalvenor::storage
