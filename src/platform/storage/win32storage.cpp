// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/storage.h"

#ifdef Q_OS_WIN

#include <algorithm>
#include <QDir>
#include <qt_windows.h>
#include <string>

namespace kalvenor::storage {

namespace {

constexpr std::size_t LargestTransfer = 1 << 30;
constexpr DWORD Shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring nativeText(const QString &path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

SystemError lastError()
{
    return static_cast<SystemError>(GetLastError());
}

SystemError errorOf(BOOL succeeded)
{
    return succeeded ? 0 : lastError();
}

OVERLAPPED placeOf(qint64 offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

FileFault faultOf(DWORD error, const wchar_t *path, OpenMode mode)
{
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return FileFault::IsFolder;
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return FileFault::NotFound;
    case ERROR_WRITE_PROTECT:
        return FileFault::ReadOnly;
    case ERROR_ACCESS_DENIED:
        if (mode == OpenMode::ReadWrite && attributes != INVALID_FILE_ATTRIBUTES &&
            (attributes & FILE_ATTRIBUTE_READONLY) != 0)
            return FileFault::ReadOnly;
        return FileFault::PermissionDenied;
    default:
        return FileFault::Other;
    }
}

class Win32File : public OpenFile {
public:
    explicit Win32File(HANDLE handle) : m_handle(handle) {}
    ~Win32File() override { CloseHandle(m_handle); }

    SystemError state(FileState &now) const override
    {
        LARGE_INTEGER size;
        FILETIME time;
        BY_HANDLE_FILE_INFORMATION file;
        if (!GetFileSizeEx(m_handle, &size) || !GetFileTime(m_handle, nullptr, nullptr, &time) ||
            !GetFileInformationByHandle(m_handle, &file))
            return lastError();
        // 100 ns since 1601.
        const qint64 ticks = (static_cast<qint64>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
        now = {size.QuadPart, (ticks - 116444736000000000LL) * 100,
               static_cast<quint64>(file.nFileIndexHigh) << 32 | file.nFileIndexLow};
        return 0;
    }

    qint64 read(qint64 offset, std::span<std::uint8_t> into) const override
    {
        OVERLAPPED place = placeOf(offset);
        DWORD count = 0;
        const auto wish = static_cast<DWORD>(std::min(into.size(), LargestTransfer));
        if (!ReadFile(m_handle, into.data(), wish, &count, &place) && GetLastError() != ERROR_HANDLE_EOF)
            return -static_cast<qint64>(lastError());
        return count;
    }

    qint64 write(qint64 offset, std::span<const std::uint8_t> bytes) override
    {
        OVERLAPPED place = placeOf(offset);
        DWORD count = 0;
        const auto wish = static_cast<DWORD>(std::min(bytes.size(), LargestTransfer));
        if (!WriteFile(m_handle, bytes.data(), wish, &count, &place))
            return -static_cast<qint64>(lastError());
        return count == 0 ? -static_cast<qint64>(ERROR_DISK_FULL) : count;
    }

    SystemError sync() override { return errorOf(FlushFileBuffers(m_handle)); }

    SystemError lock(qint64 offset, qint64 length) override
    {
        OVERLAPPED place = placeOf(offset);
        const SystemError error =
            errorOf(LockFileEx(m_handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0,
                               static_cast<DWORD>(length & 0xFFFFFFFF), static_cast<DWORD>(length >> 32), &place));
        return error == ERROR_LOCK_VIOLATION || error == ERROR_IO_PENDING ? LockedElsewhere : error;
    }
    SystemError unlock(qint64 offset, qint64 length) override
    {
        OVERLAPPED place = placeOf(offset);
        return errorOf(UnlockFileEx(m_handle, 0, static_cast<DWORD>(length & 0xFFFFFFFF),
                                    static_cast<DWORD>(length >> 32), &place));
    }

private:
    HANDLE m_handle;
};

class Win32Storage : public Storage {
public:
    Opened open(const QString &name, OpenMode mode) override
    {
        const std::wstring path = nativeText(name);
        const DWORD access = mode == OpenMode::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
        const HANDLE handle =
            CreateFileW(path.c_str(), access, Shared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            const DWORD error = GetLastError();
            return {nullptr, faultOf(error, path.c_str(), mode), static_cast<SystemError>(error)};
        }
        auto file = std::make_unique<Win32File>(handle);
        if (GetFileType(handle) != FILE_TYPE_DISK)
            return {nullptr, FileFault::Other, ERROR_INVALID_NAME};
        return {std::move(file)};
    }

    // A new file has the permissions of its folder, as any other file there.
    Opened create(const QString &name, const QString &) override
    {
        const HANDLE handle = CreateFileW(nativeText(name).c_str(), GENERIC_READ | GENERIC_WRITE, Shared, nullptr,
                                          CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return {nullptr, FileFault::Other, lastError()};
        return {std::make_unique<Win32File>(handle)};
    }

    SystemError rename(const QString &from, const QString &to) override
    {
        return errorOf(MoveFileExW(nativeText(from).c_str(), nativeText(to).c_str(),
                                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    }

    SystemError remove(const QString &path) override { return errorOf(DeleteFileW(nativeText(path).c_str())); }

    // Renaming has already waited for the disk.
    SystemError syncFolder(const QString &) override { return 0; }
};

} // namespace

void tellFileSizeLimit()
{
} // it is always an error here

Storage &systemStorage()
{
    static Win32Storage storage;
    return storage;
}

} // namespace kalvenor::storage

#endif
