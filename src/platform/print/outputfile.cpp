// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/outputfile.h"

#include <QFileInfo>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {

OutputFile::OutputFile(const QString &nativePath, const QString &kind)
    : m_kind(kind), m_path(nativePath), m_file(basic::NativePath(nativePath))
{
    const QFileInfo place(nativePath);
    if (place.exists() && !place.isFile()) // a device would be replaced, too
        fail(basic::Fault::NoPlainFile, {m_kind});
    if (m_file.hasFailed())
        fail(basic::Fault::PlaceNotWritable, {m_kind, m_file.errorText()});
    open(WriteOnly | Unbuffered);
}

void OutputFile::check() const
{
    if (m_file.hasFailed())
        fail(basic::Fault::DiskFull, {m_kind});
}

void OutputFile::cancel() const
{
    throw basic::Error(basic::Fault::StoppedUnwritten, {.file = m_path});
}

void OutputFile::commit()
{
    check();
    if (!m_file.commit())
        fail(basic::Fault::NotReplaced, {m_kind, m_file.errorText()});
    close();
}

qint64 OutputFile::writeData(const char *data, qint64 size)
{
    return m_file.append({data, size}) ? size : -1;
}

void OutputFile::fail(basic::Fault fault, std::vector<basic::Argument> arguments) const
{
    throw basic::Error(fault, {.file = m_path}, std::move(arguments));
}

} // namespace kalvenor::print
