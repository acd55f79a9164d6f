// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/path.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

#ifdef Q_OS_WIN
constexpr bool OnWindows = true;
#else
constexpr bool OnWindows = false;
#endif

// Nothing lies below a device, so a path from here is never found and never made.
QString nowhere()
{
    return u"/dev/null/"_s;
}

QString withEndSlash(const QString &folder)
{
    return folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
}

bool hasDrive(QStringView path)
{
    return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 128 && path[0].isLetter();
}

bool exists(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// The entry of `folder` (with end slash, "" = current) that is `name` but for case, else "".
QString findIgnoringCase(const QString &folder, const QString &name, bool mustBeFolder)
{
    QDir::Filters filters = QDir::AllDirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    if (!mustBeFolder)
        filters |= QDir::Files;
    const QStringList entries = QDir(folder.isEmpty() ? u"."_s : folder).entryList(filters, QDir::Name);
    for (const QString &entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return {};
}

QString resolveCase(const QString &start, const QString &rest)
{
    if (OnWindows || exists(start + rest))
        return start + rest;
    const QStringList parts = rest.split(u'/', Qt::SkipEmptyParts);
    QString found = start;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const bool last = i + 1 == parts.size();
        QString part = parts[i];
        if (last ? !exists(found + part) : !QFileInfo(found + part).isDir()) {
            const QString other = findIgnoringCase(found, part, !last);
            if (!other.isEmpty())
                part = other;
        }
        found += last ? part : part + u'/';
    }
    return rest.endsWith(u'/') ? withEndSlash(found) : found;
}

} // namespace

bool hasUnmappedDrive(const WindowsPath &windowsPath, const DriveMap &drives)
{
    const QString &path = windowsPath.text();
    return !OnWindows && hasDrive(path) && !drives.contains(path[0].toUpper());
}

NativePath nativePath(const WindowsPath &windowsPath, const DriveMap &drives)
{
    QString path = windowsPath.text();
    path.replace(u'\\', u'/');
    if (path.startsWith("//"_L1))
        return NativePath(path);
    if (hasDrive(path)) {
        const auto folder = drives.constFind(path[0].toUpper());
        if (folder == drives.constEnd())
            return NativePath(OnWindows ? path : nowhere() + path);
        qsizetype from = 2;
        while (from < path.size() && path[from] == u'/')
            ++from;
        return NativePath(from == path.size() ? *folder : resolveCase(withEndSlash(*folder), path.mid(from)));
    }
    return NativePath(path.startsWith(u'/') ? resolveCase(u"/"_s, path.mid(1)) : resolveCase({}, path));
}

WindowsPath windowsPath(const QString &nativePath, const DriveMap &drives)
{
    QString path = nativePath;
    if (!OnWindows && path.startsWith(nowhere()) && hasDrive(QStringView(path).mid(nowhere().size())))
        path.remove(0, nowhere().size());
    qsizetype longest = 0;
    QChar drive;
    for (auto mapped = drives.begin(); mapped != drives.end(); ++mapped) {
        const QString folder = withEndSlash(mapped.value());
        if (folder.size() > longest && withEndSlash(path).startsWith(folder)) {
            longest = folder.size();
            drive = mapped.key();
        }
    }
    if (longest > 0)
        path = drive + u":/"_s + path.mid(longest);
    return WindowsPath(path.replace(u'/', u'\\'));
}

QString directoryListing(const WindowsPath &windowsPath, const DriveMap &drives)
{
    const QString &path = windowsPath.text();
    if (path.isEmpty() || path.endsWith(u'\\') || path.endsWith(u'/'))
        return {};
    const QFileInfo file(nativePath(windowsPath, drives));
    return file.isFile() && !file.isHidden() ? file.fileName() : QString();
}

QString fileNamePart(const QString &text)
{
    const auto refused = [](QChar c) {
        const QChar::Category category = c.category();
        return u"<>:\"/\\|?*"_s.contains(c) || category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    };
    QString part = text;
    part.removeIf(refused);
    while (part.startsWith(u'.'))
        part.remove(0, 1);
    return part;
}

} // namespace kalvenor::basic
