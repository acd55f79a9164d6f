// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the raw page of an HTML export: the page has its lines, no masked tag is left, and the raw one is gone.
#include "report/export/htmlexport.h"
#include <cstdlib>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace kalvenor;
using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir Folder;
    static desktop::TerminalDesktop desktop;
    static const host::Host Host(basic::windowsPath(Folder.path()) + u"\\Kalvenor"_s, desktop);
    static const basic::WindowsPath Page = basic::windowsPath(Folder.filePath(u"page.html"_s));
    const QByteArray raw(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QFile file(Host.native(report::rawPage(Page)));
    if (!file.open(QIODevice::WriteOnly) || file.write(raw) != raw.size())
        std::abort();
    file.close();
    report::htmlnachbearbeiten(Host, Page);

    QFile written(Host.native(Page));
    if (!written.open(QIODevice::ReadOnly))
        std::abort();
    const QByteArray page = written.readAll();
    const bool lastIsOpen = !raw.isEmpty() && !raw.endsWith('\n');
    if (page.contains("&lt;") || page.contains("&gt;") || page.count("\r\n") != page.count('\n') ||
        page.count('\n') != raw.count('\n') + (lastIsOpen ? 1 : 0) || file.exists())
        std::abort();
    return 0;
}
