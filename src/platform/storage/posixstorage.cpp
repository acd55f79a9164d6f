// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/storage.h"

#ifndef Q_OS_WIN

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace kalvenor::storage {

namespace {

FileFault faultOf(int error, const char *path, OpenMode mode)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return FileFault::NotFound;
    case EISDIR:
        return FileFault::IsFolder;
    case EROFS:
        return FileFault::ReadOnly;
    case EACCES:
    case EPERM:
        return mode == OpenMode::ReadWrite && ::faccessat(AT_FDCWD, path, R_OK, AT_EACCESS) == 0
                   ? FileFault::ReadOnly
                   : FileFault::PermissionDenied;
    default:
        return FileFault::Other;
    }
}

SystemError errorOf(int outcome)
{
    return outcome == 0 ? 0 : errno;
}

class PosixFile : public OpenFile {
public:
    explicit PosixFile(int descriptor) : m_descriptor(descriptor) {}
    ~PosixFile() override { ::close(m_descriptor); }

    SystemError state(FileState &now) const override
    {
        struct stat status;
        if (::fstat(m_descriptor, &status) != 0)
            return errno;
#ifdef Q_OS_DARWIN
        const timespec &time = status.st_mtimespec;
#else
        const timespec &time = status.st_mtim;
#endif
        now = {status.st_size, static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec, status.st_ino};
        return 0;
    }

    qint64 read(qint64 offset, std::span<std::uint8_t> into) const override
    {
        ssize_t count = -1;
        do {
            count = ::pread(m_descriptor, into.data(), into.size(), offset);
        } while (count < 0 && errno == EINTR);
        return count < 0 ? -errno : count;
    }

    qint64 write(qint64 offset, std::span<const std::uint8_t> bytes) override
    {
        ssize_t count = -1;
        do {
            count = ::pwrite(m_descriptor, bytes.data(), bytes.size(), offset);
        } while (count < 0 && errno == EINTR);
        if (count == 0)
            return -ENOSPC;
        return count < 0 ? -errno : count;
    }

    SystemError sync() override
    {
        return errorOf(::fsync(m_descriptor));
    }

    SystemError lock(qint64 offset, qint64 length) override
    {
        const SystemError error = setLock(F_WRLCK, offset, length);
        return error == EAGAIN || error == EACCES ? LockedElsewhere : error;
    }
    SystemError unlock(qint64 offset, qint64 length) override
    {
        return setLock(F_UNLCK, offset, length);
    }

private:
    SystemError setLock(short type, qint64 offset, qint64 length) const
    {
        struct flock range = {};
        range.l_type = type;
        range.l_whence = SEEK_SET;
        range.l_start = offset;
        range.l_len = length;
#ifdef F_OFD_SETLK
        constexpr int command = F_OFD_SETLK; // owned by the open file, not by the whole process
#else
        constexpr int command = F_SETLK;
#endif
        return errorOf(::fcntl(m_descriptor, command, &range));
    }

    int m_descriptor;
};

Opened failed(FileFault fault, int error)
{
    return {nullptr, fault, error};
}

class PosixStorage : public Storage {
public:
    Opened open(const QString &name, OpenMode mode) override
    {
        const QByteArray path = QFile::encodeName(name);
        // Without O_NONBLOCK a named pipe would wait for its other end.
        const int descriptor =
            ::open(path.constData(), (mode == OpenMode::Read ? O_RDONLY : O_RDWR) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        if (descriptor < 0) {
            const int error = errno;
            return failed(faultOf(error, path.constData(), mode), error);
        }
        auto file = std::make_unique<PosixFile>(descriptor);
        struct stat status;
        if (::fstat(descriptor, &status) != 0)
            return failed(FileFault::Other, errno);
        if (S_ISDIR(status.st_mode))
            return failed(FileFault::IsFolder, EISDIR);
        if (!S_ISREG(status.st_mode))
            return failed(FileFault::Other, EINVAL);
        return {std::move(file)};
    }

    Opened create(const QString &name, const QString &like) override
    {
        constexpr mode_t everybody = 0666; // less what the user's mask takes away
        const int descriptor =
            ::open(QFile::encodeName(name).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, everybody);
        if (descriptor < 0)
            return failed(FileFault::Other, errno);
        auto file = std::make_unique<PosixFile>(descriptor);
        struct stat status;
        if (::stat(QFile::encodeName(like).constData(), &status) == 0 &&
            ::fchmod(descriptor, status.st_mode & 0777) != 0) {
            const int error = errno;
            remove(name);
            return failed(FileFault::Other, error);
        }
        return {std::move(file)};
    }

    SystemError rename(const QString &from, const QString &to) override
    {
        return errorOf(::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()));
    }

    SystemError remove(const QString &path) override { return errorOf(::unlink(QFile::encodeName(path).constData())); }

    SystemError syncFolder(const QString &folder) override
    {
        const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (descriptor < 0)
            return errno == EACCES ? 0 : errno; // one may write where one may not look
        const SystemError error = errorOf(::fsync(descriptor));
        ::close(descriptor);
        return error == EINVAL || error == ENOTSUP || error == EBADF ? 0 : error;
    }
};

} // namespace

void tellFileSizeLimit()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

Storage &systemStorage()
{
    static PosixStorage storage;
    return storage;
}

} // namespace kalvenor::storage

#endif
