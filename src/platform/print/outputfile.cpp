// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/outputfile.h"

#include "platform/basic/error.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::print {

OutputFile::OutputFile(const QString &nativePath, const QString &kind)
    : m_kind(kind), m_path(nativePath), m_file(nativePath)
{
    const QFileInfo place(nativePath);
    if (place.exists() && !place.isFile()) // a device would be replaced, too
        fail(u"this is a folder or a device, not a file. Choose another name."_s);
    if (m_file.hasFailed())
        fail(u"%1. Choose another folder or name, or allow writing there."_s.arg(m_file.errorText()));
    open(WriteOnly | Unbuffered);
}

void OutputFile::check() const
{
    if (m_file.hasFailed())
        fail(u"the disk may be full. Make room on it or choose another one; an older file of this name "
             "is unchanged."_s);
}

void OutputFile::cancel() const
{
    throw basic::Error(basic::ErrorKind::Cancelled, m_path, u"Stopped by the user; nothing was written."_s);
}

void OutputFile::commit()
{
    check();
    if (!m_file.commit())
        fail(u"%1. Close it where it is open in another program, or choose another name; the older file is unchanged."_s
                 .arg(m_file.errorText()));
    close();
}

qint64 OutputFile::writeData(const char *data, qint64 size)
{
    return m_file.append({data, size}) ? size : -1;
}

void OutputFile::fail(const QString &text) const
{
    throw basic::Error(basic::ErrorKind::WriteFailed, m_path, u"The %1 file cannot be written: %2"_s.arg(m_kind, text));
}

} // namespace kalvenor::print
