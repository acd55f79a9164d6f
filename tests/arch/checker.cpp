// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "arch/checker.h"

#include <QRegularExpression>
#include <stdexcept>
#include <utility>

namespace kalvenor::arch {
namespace {

constexpr qsizetype longestFile = 600;

/// The room of a path below src/, "" where it lies in none.
QString roomOf(const RoomTable &rooms, QStringView pathInSrc)
{
    for (const auto &[room, allowed] : rooms) {
        if (pathInSrc.startsWith(room) && pathInSrc.mid(room.size()).startsWith(u'/'))
            return room;
    }
    return {};
}

QString includeFault(const RoomTable &rooms, const QString &room, const QString &header, bool quoted)
{
    const QString target = roomOf(rooms, header);
    if (target.isEmpty()) {
        const bool foreign = !quoted || header.endsWith(QLatin1String(".moc"));
        return foreign ? QString() : u"includes \"%1\", which names no room: write \"room/file.h\""_qs.arg(header);
    }
    if (!rooms.at(room).contains(target))
        return u"room %1 may not include %2"_qs.arg(room, header);
    return {};
}

} // namespace

RoomTable readRoomTable(QStringView text)
{
    RoomTable rooms;
    for (const QStringView line : text.split(u'\n')) {
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        const qsizetype colon = line.indexOf(u':');
        if (colon <= 0)
            throw std::runtime_error("rooms.txt: not \"room: rooms\": " + line.toString().toStdString());
        const QString room = line.left(colon).toString();
        QStringList allowed{room};
        for (const QStringView name : line.mid(colon + 1).split(u' ', Qt::SkipEmptyParts)) {
            const qsizetype before = allowed.size();
            for (const auto &[known, unused] : rooms) {
                if (name == u"*" || known == name || (name == u"platform" && known.startsWith(u"platform/")))
                    allowed << known;
            }
            if (allowed.size() == before)
                throw std::runtime_error("rooms.txt: not a room above: " + name.toString().toStdString());
        }
        rooms[room] = allowed;
    }
    return rooms;
}

QStringList violations(const RoomTable &rooms, const QString &path, QStringView text, bool hasHeader)
{
    static const QRegularExpression include(uR"(^\s*#\s*include\s*([<"])([^>"]+)[>"])"_qs);
    static const QRegularExpression systemHeader(
        uR"(^((unistd|windows|fcntl|dlfcn|dirent|io|direct|spawn|signal|pthread)\.h|sys/.*|csignal)$)"_qs,
        QRegularExpression::CaseInsensitiveOption);

    QStringList found;
    const auto report = [&](qsizetype line, const QString &what) {
        found << u"%1:%2: %3"_qs.arg(path, QString::number(line), what);
    };
    const bool inSources = path.startsWith(u"src/");
    const bool isCpp = path.endsWith(u".cpp") || path.endsWith(u".h");
    const bool mayCallSystem = path.startsWith(u"src/platform/") || path.startsWith(u"tests/platform/");
    const QString room = inSources ? roomOf(rooms, QStringView(path).mid(4)) : QString();
    if (inSources && isCpp && room.isEmpty())
        report(1, u"lies in no room of tests/arch/rooms.txt"_qs);

    QList<QStringView> lines = text.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    if (lines.size() > longestFile)
        report(lines.size(), u"the file is longer than %1 lines"_qs.arg(longestFile));

    const qsizetype head = !lines.isEmpty() && lines[0].startsWith(u"#!") ? 1 : 0;
    if (lines.size() < head + 2 || !lines[head].contains(QLatin1String("SPDX-FileCopyrightText: ")) ||
        !lines[head + 1].contains(QLatin1String("SPDX-License-Identifier: GPL-3.0-or-later")))
        report(head + 1, u"the two-line SPDX header is missing"_qs);

    const QString ownHeader = path.mid(path.indexOf(u'/') + 1).chopped(4) + u".h"_qs;
    bool ownHeaderDue = hasHeader && path.endsWith(u".cpp");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!isCpp)
            continue;
        const auto match = include.match(lines[i]);
        if (!match.hasMatch())
            continue;
        const QString header = match.captured(2);
        if (std::exchange(ownHeaderDue, false) && header != ownHeader)
            report(i + 1, u"the first include must be \"%1\""_qs.arg(ownHeader));
        if (!mayCallSystem && systemHeader.match(header).hasMatch())
            report(i + 1, u"<%1> belongs to src/platform"_qs.arg(header));
        if (!room.isEmpty()) {
            if (const QString fault = includeFault(rooms, room, header, match.captured(1) == u"\""); !fault.isEmpty())
                report(i + 1, fault);
        }
    }
    if (ownHeaderDue)
        report(1, u"does not include \"%1\""_qs.arg(ownHeader));
    return found;
}

} // namespace kalvenor::arch
