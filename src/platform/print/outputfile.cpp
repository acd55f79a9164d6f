// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/outputfile.h"

#include "platform/basic/error.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::print {

OutputFile::OutputFile(const QString &nativePath, const QString &kind) : m_kind(kind), m_file(nativePath)
{
    const QFileInfo place(nativePath);
    if (place.exists() && !place.isFile()) // a device would be replaced, too
        fail(u"this is a folder or a device, not a file. Choose another name."_s);
    if (!m_file.open(WriteOnly))
        fail(u"%1. Choose another folder or name, or allow writing there."_s.arg(m_file.errorString()));
    open(WriteOnly | Unbuffered);
}

void OutputFile::check() const
{
    if (m_failed)
        fail(u"the disk may be full. Make room on it or choose another one; an older file of this name "
             "is unchanged."_s);
}

void OutputFile::cancel() const
{
    throw basic::Error(basic::ErrorKind::Cancelled, m_file.fileName(), u"Stopped by the user; nothing was written."_s);
}

void OutputFile::commit()
{
    // commit() alone does not notice that the rest of its buffer finds no room (Qt 6.4).
    m_failed = m_failed || !m_file.flush();
    check();
    if (!m_file.commit())
        fail(u"%1. Close it where it is open in another program, or choose another name; the older file is unchanged."_s
                 .arg(m_file.errorString()));
    close();
}

qint64 OutputFile::writeData(const char *data, qint64 size)
{
    // A disk that becomes full takes a part of a write without an error.
    for (qint64 done = 0; done < size && !m_failed;) {
        const qint64 taken = m_file.write(data + done, size - done);
        m_failed = taken <= 0;
        done += taken;
    }
    return m_failed ? -1 : size;
}

void OutputFile::fail(const QString &text) const
{
    throw basic::Error(basic::ErrorKind::WriteFailed, m_file.fileName(),
                       u"The %1 file cannot be written: %2"_s.arg(m_kind, text));
}

} // namespace kalvenor::print
