// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/replacement.h"

#include <QFileInfo>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace kalvenor::storage {

namespace {

constexpr qsizetype BytesAWrite = 64 * 1024;

/// What the last of the links leads to, whether it is there or not.
QString withoutLinks(const QString &file)
{
    constexpr int mostLinks = 40;
    QString target = file;
    for (int i = 0; i < mostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

} // namespace

Replacement::Replacement(const QString &nativeFile)
{
    if (nativeFile.isEmpty()) {
        fail(u"no file name was given"_s);
        return;
    }
    // A rename would replace even a file that may not be written, or a folder that is empty.
    QString reason;
    const FileFault fault = File::open(nativeFile, File::Mode::ReadWrite, &reason).fault();
    if (fault != FileFault::None && fault != FileFault::NotFound) {
        fail(reason);
        return;
    }
    m_target = withoutLinks(nativeFile);
    create();
}

Replacement::~Replacement()
{
    drop();
}

bool Replacement::create()
{
    constexpr int attempts = 20; // of 2^32 names
    SystemError error = 0;
    for (int i = 0; i < attempts; ++i) {
        const QString name =
            u"%1.%2"_s.arg(m_target).arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
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

bool Replacement::fail(const QString &reason)
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

bool replaceFileSafely(const QString &nativeFile, QByteArrayView content, QString *whatFailed)
{
    Replacement file(nativeFile);
    file.append(content);
    if (file.commit())
        return true;
    if (whatFailed)
        *whatFailed = file.errorText();
    return false;
}

} // namespace kalvenor::storage
