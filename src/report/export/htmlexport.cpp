// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/export/htmlexport.h"

#include "platform/basic/error.h"
#include "platform/basic/path.h"
#include "platform/basic/text.h"
#include "platform/storage/replacement.h"
#include <QDir>
#include <QFile>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

namespace {

constexpr QChar Quote(34);

[[noreturn]] void failed(const basic::WindowsPath &file, const basic::Argument &why)
{
    throw basic::Error(basic::Fault::PageUnfinished, {.file = file.text()}, {why});
}

QByteArray withTags(const QByteArray &page)
{
    QByteArray result;
    result.reserve(page.size() + page.size() / 16);
    for (qsizetype begin = 0; begin < page.size();) {
        qsizetype end = page.indexOf('\n', begin);
        if (end < 0)
            end = page.size();
        QByteArray line = page.mid(begin, end - begin);
        if (line.endsWith('\r'))
            line.chop(1);
        line.replace("&lt;", "<").replace("&gt;", ">");
        result += line + "\r\n";
        begin = end + 1;
    }
    return result;
}

} // namespace

basic::WindowsPath exportName(const basic::WindowsPath &chosen, const QString &reportName, const QString &text,
                              const QString &extension)
{
    const QString &name = chosen.text();
    if (name.contains(u'*') || name.contains(u'?'))
        throw basic::Error(basic::Fault::WildcardInName, {.file = name});
    return basic::WindowsPath(basic::leftPart(name, name.lastIndexOf(u'.')) + u'-' +
                              basic::fileNamePart(reportName + text) + extension);
}

QString fileNameOf(const basic::WindowsPath &path)
{
    return path.text().mid(path.text().lastIndexOf(u'\\') + 1);
}

basic::WindowsPath folderOf(const basic::WindowsPath &path)
{
    return basic::WindowsPath(path.text().left(path.text().lastIndexOf(u'\\') + 1));
}

basic::WindowsPath outputFolder(const host::Host &host)
{
    return host.Hostverzeichnis + u"\\Ausdrucke\\"_s;
}

basic::WindowsPath symbolFile(const basic::WindowsPath &exportFile)
{
    return basic::WindowsPath(basic::leftPart(exportFile.text(), exportFile.text().lastIndexOf(u'.')) +
                              u"-Person.JPG"_s);
}

QString chartTag(const basic::WindowsPath &pictureFile)
{
    return u"<img src="_s + Quote + u"./"_s + fileNameOf(pictureFile) + Quote + u" Border=0 Alt="_s + Quote + Quote +
           u'>';
}

QString personPage(qint32 counter, const QString &reportName)
{
    return QString::number(counter) + u"-D"_s + basic::fileNamePart(reportName) + u".html"_s;
}

QString personLink(const QString &page, const QString &pictureFile, const QString &alternativeText)
{
    return u"<a href=./"_s + page + u"><img src="_s + Quote + u"./"_s + pictureFile + Quote + u" Border=0 Alt="_s +
           Quote + alternativeText + Quote + u'>';
}

basic::WindowsPath rawPage(const basic::WindowsPath &exportFile)
{
    return exportFile + u"x"_s;
}

void htmlnachbearbeiten(const host::Host &host, const basic::WindowsPath &exportFile)
{
    const QString copy = host.native(rawPage(exportFile));
    const auto removeCopy = qScopeGuard([&copy] { QFile::remove(copy); });
    QFile source(copy);
    if (!source.open(QIODevice::ReadOnly))
        failed(exportFile, source.errorString());
    const QByteArray page = source.readAll();
    if (source.error() != QFileDevice::NoError)
        failed(exportFile, source.errorString());
    source.close();
    basic::Argument why;
    if (!storage::replaceFileSafely(host.native(exportFile), withTags(page), &why))
        failed(exportFile, why);

    QDir folder(host.native(folderOf(exportFile)));
    const QStringList copies = folder.entryList({u"*.htmlx"_s}, QDir::Files);
    for (const QString &name : copies)
        folder.remove(name); // where that fails, the page is whole all the same
}

} // namespace kalvenor::report
