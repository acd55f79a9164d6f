// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/file.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace kalvenor::storage {

namespace {

QString faultText(FileFault fault, int systemError)
{
    switch (fault) {
    case FileFault::None:
        break;
    case FileFault::NotFound:
        return u"the file was not found"_s;
    case FileFault::IsFolder:
        return u"this is a folder, not a file"_s;
    case FileFault::PermissionDenied:
        return u"permission denied: this user may not read the file"_s;
    case FileFault::ReadOnly:
        return u"the file is read-only"_s;
    case FileFault::Other:
        return u"the file cannot be opened: "_s + qt_error_string(systemError);
    }
    return {};
}

const QString PastTheEnd = u"the file ends before the place that was to be read"_s;

} // namespace

File::~File()
{
    close();
}

File::File(File &&other) noexcept
    : m_handle(std::exchange(other.m_handle, Closed)), m_fault(other.m_fault), m_error(std::move(other.m_error))
{
}

File &File::operator=(File &&other) noexcept
{
    if (this != &other) {
        close();
        m_handle = std::exchange(other.m_handle, Closed);
        m_fault = other.m_fault;
        m_error = std::move(other.m_error);
    }
    return *this;
}

#ifdef Q_OS_WIN

namespace {

HANDLE nativeHandle(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

OVERLAPPED placeOf(qint64 offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

constexpr std::size_t LargestTransfer = 1 << 30;

FileFault faultOf(DWORD systemError, const wchar_t *path, File::Mode mode)
{
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return FileFault::IsFolder;
    switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return FileFault::NotFound;
    case ERROR_WRITE_PROTECT:
        return FileFault::ReadOnly;
    case ERROR_ACCESS_DENIED:
        if (mode == File::Mode::ReadWrite && attributes != INVALID_FILE_ATTRIBUTES &&
            (attributes & FILE_ATTRIBUTE_READONLY) != 0)
            return FileFault::ReadOnly;
        return FileFault::PermissionDenied;
    default:
        return FileFault::Other;
    }
}

} // namespace

File File::open(const QString &nativePath, Mode mode, QString *error)
{
    File file;
    const std::wstring path = QDir::toNativeSeparators(nativePath).toStdWString();
    const DWORD access = mode == Mode::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
    const HANDLE handle = CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        const DWORD systemError = GetLastError();
        file.m_fault = faultOf(systemError, path.c_str(), mode);
        file.m_error = faultText(file.m_fault, static_cast<int>(systemError));
        if (error)
            *error = file.m_error;
        return file;
    }
    file.m_handle = reinterpret_cast<std::intptr_t>(handle);
    return file;
}

void File::close()
{
    if (isOpen())
        CloseHandle(nativeHandle(m_handle));
    m_handle = Closed;
}

qint64 File::size() const
{
    LARGE_INTEGER size;
    if (!isOpen() || !GetFileSizeEx(nativeHandle(m_handle), &size))
        return -1;
    return size.QuadPart;
}

qint64 File::modifiedNs() const
{
    FILETIME time;
    if (!isOpen() || !GetFileTime(nativeHandle(m_handle), nullptr, nullptr, &time))
        return -1;
    // 100 ns since 1601.
    const qint64 ticks = (static_cast<qint64>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    return (ticks - 116444736000000000LL) * 100;
}

bool File::readAt(qint64 offset, std::span<std::uint8_t> into) const
{
    while (!into.empty()) {
        OVERLAPPED place = placeOf(offset);
        DWORD count = 0;
        const auto wish = static_cast<DWORD>(std::min(into.size(), LargestTransfer));
        if (!ReadFile(nativeHandle(m_handle), into.data(), wish, &count, &place) &&
            GetLastError() != ERROR_HANDLE_EOF) {
            m_error = qt_error_string(static_cast<int>(GetLastError()));
            return false;
        }
        if (count == 0) {
            m_error = PastTheEnd;
            return false;
        }
        into = into.subspan(count);
        offset += count;
    }
    return true;
}

bool File::writeAt(qint64 offset, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        OVERLAPPED place = placeOf(offset);
        DWORD count = 0;
        const auto wish = static_cast<DWORD>(std::min(bytes.size(), LargestTransfer));
        if (!WriteFile(nativeHandle(m_handle), bytes.data(), wish, &count, &place)) {
            m_error = qt_error_string(static_cast<int>(GetLastError()));
            return false;
        }
        bytes = bytes.subspan(count);
        offset += count;
    }
    return true;
}

bool File::sync()
{
    if (FlushFileBuffers(nativeHandle(m_handle)))
        return true;
    m_error = qt_error_string(static_cast<int>(GetLastError()));
    return false;
}

#else

namespace {

FileFault faultOf(int systemError, const char *path, File::Mode mode)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return FileFault::NotFound;
    case EISDIR:
        return FileFault::IsFolder;
    case EROFS:
        return FileFault::ReadOnly;
    case EACCES:
    case EPERM:
        return mode == File::Mode::ReadWrite && ::faccessat(AT_FDCWD, path, R_OK, AT_EACCESS) == 0
                   ? FileFault::ReadOnly
                   : FileFault::PermissionDenied;
    default:
        return FileFault::Other;
    }
}

} // namespace

File File::open(const QString &nativePath, Mode mode, QString *error)
{
    File file;
    const auto fail = [&](FileFault fault, int systemError) {
        file.close();
        file.m_fault = fault;
        file.m_error = faultText(fault, systemError);
        if (error)
            *error = file.m_error;
    };
    const QByteArray path = QFile::encodeName(nativePath);
    // Without O_NONBLOCK a named pipe would wait for its other end.
    const int descriptor =
        ::open(path.constData(), (mode == Mode::Read ? O_RDONLY : O_RDWR) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        const int systemError = errno;
        fail(faultOf(systemError, path.constData(), mode), systemError);
        return file;
    }
    file.m_handle = descriptor;
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
        fail(FileFault::Other, errno);
    else if (S_ISDIR(status.st_mode))
        fail(FileFault::IsFolder, 0);
    else if (!S_ISREG(status.st_mode))
        fail(FileFault::Other, EINVAL);
    return file;
}

void File::close()
{
    if (isOpen())
        ::close(static_cast<int>(m_handle));
    m_handle = Closed;
}

qint64 File::size() const
{
    struct stat status;
    if (::fstat(static_cast<int>(m_handle), &status) != 0) {
        m_error = qt_error_string(errno);
        return -1;
    }
    return status.st_size;
}

qint64 File::modifiedNs() const
{
    struct stat status;
    if (::fstat(static_cast<int>(m_handle), &status) != 0) {
        m_error = qt_error_string(errno);
        return -1;
    }
#ifdef Q_OS_DARWIN
    const timespec &time = status.st_mtimespec;
#else
    const timespec &time = status.st_mtim;
#endif
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

bool File::readAt(qint64 offset, std::span<std::uint8_t> into) const
{
    while (!into.empty()) {
        const ssize_t count = ::pread(static_cast<int>(m_handle), into.data(), into.size(), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            m_error = count == 0 ? PastTheEnd : qt_error_string(errno);
            return false;
        }
        into = into.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
    return true;
}

bool File::writeAt(qint64 offset, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::pwrite(static_cast<int>(m_handle), bytes.data(), bytes.size(), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            m_error = qt_error_string(count == 0 ? ENOSPC : errno);
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += count;
    }
    return true;
}

bool File::sync()
{
    if (::fsync(static_cast<int>(m_handle)) == 0)
        return true;
    m_error = qt_error_string(errno);
    return false;
}

#endif

bool replaceFileSafely(const QString &nativeFile, QByteArrayView content, QString *whatFailed)
{
    const auto fail = [whatFailed](const QString &reason) {
        if (whatFailed)
            *whatFailed = reason;
        return false;
    };
    if (nativeFile.isEmpty())
        return fail(u"no file name was given"_s);
    // A rename would replace even a file that may not be written.
    QString reason;
    const FileFault fault = File::open(nativeFile, File::Mode::ReadWrite, &reason).fault();
    if (fault != FileFault::None && fault != FileFault::NotFound)
        return fail(reason);
    QSaveFile file(nativeFile);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    if (file.write(content.data(), content.size()) != content.size() || !file.flush())
        return fail(file.errorString());
#ifndef Q_OS_WIN
    // QSaveFile syncs by itself, but ignores a disk that says no.
    if (::fsync(file.handle()) != 0)
        return fail(qt_error_string(errno));
#endif
    if (!file.commit())
        return fail(file.errorString());
#ifndef Q_OS_WIN
    // The rename itself lasts once the folder is synced; a file system that cannot sync folders is no failure.
    QFileInfo target(nativeFile);
    if (target.isSymLink())
        target.setFile(target.canonicalFilePath());
    const int folder = ::open(QFile::encodeName(target.absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
#endif
    return true;
}

} // namespace kalvenor::storage
