// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/gate.h"

#include "platform/basic/error.h"
#include <algorithm>
#include <array>
#include <QFileInfo>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kalvenor::storage {

namespace {

/// Databases, and the files beside open ones that hold who uses them.
constexpr QLatin1StringView DatabaseEndings[] = {"mdb"_L1, "mde"_L1, "ldb"_L1, "accdb"_L1, "accde"_L1, "laccdb"_L1};
constexpr auto HostSettings = "programm.ini"_L1;

bool isNamedDatabase(const QFileInfo &file)
{
    const QString ending = file.suffix();
    return std::any_of(std::begin(DatabaseEndings), std::end(DatabaseEndings),
                       [&ending](QLatin1StringView each) { return ending.compare(each, Qt::CaseInsensitive) == 0; });
}

} // namespace

QString withoutLinks(const basic::NativePath &nativeFile)
{
    constexpr int mostLinks = 40;
    QString target = nativeFile;
    for (int i = 0; i < mostLinks && QFileInfo(target).isSymLink(); ++i)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

void checkTarget(const basic::NativePath &nativeFile, Origin origin)
{
    checkNames(nativeFile, origin);
    const File old = File::open(nativeFile, File::Mode::Read, nullptr);
    if (old.isOpen())
        checkContent(nativeFile, old, origin); // what cannot be read now is told when it is to be written
}

void checkNames(const basic::NativePath &nativeFile, Origin origin)
{
    if (origin == Origin::NewHost)
        return;
    const QFileInfo named(nativeFile);
    if (origin == Origin::Beside && named.isSymLink())
        throw basic::Error(basic::Fault::TargetIsLink, {.file = nativeFile});
    const QFileInfo target(withoutLinks(nativeFile));
    if (isNamedDatabase(named) || isNamedDatabase(target))
        throw basic::Error(basic::Fault::TargetIsDatabase, {.file = nativeFile}, {target.filePath()});
    const bool meant = origin == Origin::Settings && named.fileName() == target.fileName();
    if (!meant && target.fileName().compare(HostSettings, Qt::CaseInsensitive) == 0)
        throw basic::Error(basic::Fault::TargetIsHostSettings, {.file = nativeFile}, {target.filePath()});
}

bool checkContent(const basic::NativePath &nativeFile, const File &old, Origin origin)
{
    // No database can be opened without one of these names at this place, so that none that is open passes.
    constexpr qint64 namePlace = 4;
    constexpr std::string_view names[] = {"Standard Jet DB", "Standard ACE DB"};
    std::array<std::uint8_t, names[0].size()> bytes{};
    if (origin == Origin::NewHost)
        return true;
    const qint64 size = old.size();
    if (size >= 0 && size < namePlace + static_cast<qint64>(bytes.size()))
        return true;
    if (size < 0 || !old.readAt(namePlace, bytes))
        return false;
    if (std::any_of(std::begin(names), std::end(names),
                    [&bytes](std::string_view name) { return std::equal(bytes.begin(), bytes.end(), name.begin()); }))
        throw basic::Error(basic::Fault::TargetIsDatabase, {.file = nativeFile}, {withoutLinks(nativeFile)});
    return true;
}

} // namespace kalvenor::storage
