// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/replacement.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::storage {

namespace {

constexpr qsizetype BytesAWrite = 64 * 1024;

/// A file beside another one that nobody has written to for so long belongs to a run that was killed.
constexpr qint64 LeftBehindAfterSeconds = 60 * 60;

constexpr int NamesBeside = 20;

QString nameBeside(const QString &target, int number)
{
    return u"%1.kalvenor%2"_s.arg(target).arg(number);
}

/// Removes what killed runs left beside the target. Where every name is still taken, the oldest file gives way, as so
/// many programs never write one file at once; if one does, its own renaming fails and is told.
void removeLeftBehind(const QString &target)
{
    const QDateTime now = QDateTime::currentDateTime();
    QFileInfo oldest;
    int taken = 0;
    for (int i = 1; i <= NamesBeside; ++i) {
        const QFileInfo info(nameBeside(target, i));
        if (!info.isFile() || info.isSymLink())
            continue;
        if (info.lastModified().secsTo(now) > LeftBehindAfterSeconds) {
            currentStorage().remove(info.filePath()); // where that fails, another name is taken
            continue;
        }
        ++taken;
        if (oldest.filePath().isEmpty() || info.lastModified() < oldest.lastModified())
            oldest = info;
    }
    if (taken == NamesBeside)
        currentStorage().remove(oldest.filePath());
}

} // namespace

Replacement::Replacement(const basic::NativePath &nativeFile, Origin origin)
{
    if (nativeFile.isEmpty()) {
        fail(basic::Fault::WordNoName);
        return;
    }
    checkNames(nativeFile, origin);
    // A rename would replace even a file that may not be written, or a folder that is empty.
    basic::Argument reason;
    const File old = File::open(nativeFile, File::Mode::ReadWrite, &reason);
    if (!old.isOpen() && old.fault() != FileFault::NotFound) {
        fail(reason);
        return;
    }
    if (old.isOpen() && !checkContent(nativeFile, old, origin)) {
        fail(old.errorText());
        return;
    }
    m_target = origin == Origin::Beside ? nativeFile : withoutLinks(nativeFile);
    create();
}

Replacement::~Replacement()
{
    drop();
}

/// Beside the target, under the first free of a few names.
bool Replacement::create()
{
    removeLeftBehind(m_target);
    SystemError error = 0;
    for (int i = 1; i <= NamesBeside; ++i) {
        const QString name = nameBeside(m_target, i);
        Opened opened = currentStorage().create(name, m_target);
        if (opened.file) {
            m_file = std::move(opened.file);
            m_beside = name;
            return true;
        }
        error = opened.error;
        if (!QFileInfo::exists(name))
            break;
    }
    return fail(qt_error_string(error));
}

bool Replacement::fail(const basic::Argument &reason)
{
    if (m_error.isEmpty())
        m_error = reason;
    drop();
    return false;
}

void Replacement::drop()
{
    m_file.reset();
    if (!m_beside.isEmpty())
        currentStorage().remove(m_beside); // where even this fails, nothing more can be done
    m_beside.clear();
}

bool Replacement::append(QByteArrayView bytes)
{
    if (hasFailed())
        return false;
    if (m_waiting.size() + bytes.size() < BytesAWrite) {
        m_waiting.append(bytes);
        return true;
    }
    const bool written = writeOut(m_waiting);
    m_waiting.clear();
    return written && writeOut(bytes);
}

bool Replacement::writeOut(QByteArrayView bytes)
{
    Q_ASSERT(m_file != nullptr);
    while (!bytes.isEmpty()) {
        const qint64 count = m_file->write(
            m_size, {reinterpret_cast<const std::uint8_t *>(bytes.data()), static_cast<std::size_t>(bytes.size())});
        Q_ASSERT(count != 0 && count <= bytes.size());
        if (count < 0)
            return fail(qt_error_string(static_cast<SystemError>(-count)));
        m_size += count;
        bytes = bytes.sliced(count);
    }
    return true;
}

bool Replacement::commit()
{
    if (hasFailed() || !writeOut(m_waiting))
        return false;
    m_waiting.clear();
    if (const SystemError error = m_file->sync(); error != 0)
        return fail(qt_error_string(error));
    m_file.reset(); // some systems rename no open file
    if (const SystemError error = currentStorage().rename(m_beside, m_target); error != 0)
        return fail(qt_error_string(error));
    m_beside.clear();
    // The new name itself lasts once the folder is synced.
    if (const SystemError error = currentStorage().syncFolder(QFileInfo(m_target).absolutePath()); error != 0)
        return fail(qt_error_string(error));
    return true;
}

bool replaceFileSafely(const basic::NativePath &nativeFile, QByteArrayView content, basic::Argument *whatFailed,
                       Origin origin)
{
    Replacement file(nativeFile, origin);
    file.append(content);
    if (file.commit())
        return true;
    if (whatFailed)
        *whatFailed = file.errorText();
    return false;
}

} // namespace kalvenor::storage
