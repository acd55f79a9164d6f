// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "arch/checker.h"

#include <QRegularExpression>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::arch {
namespace {

constexpr qsizetype LongestFile = 600;

/// The room of a path below src/, "" where it lies in none.
QString roomOf(const RoomTable &rooms, QStringView pathInSrc)
{
    QString deepest;
    for (const auto &[room, allowed] : rooms) {
        if (pathInSrc.startsWith(room) && pathInSrc.mid(room.size()).startsWith(u'/') && room.size() > deepest.size())
            deepest = room;
    }
    return deepest;
}

QString includeFault(const RoomTable &rooms, const QString &room, const QString &header, bool quoted)
{
    const QString target = roomOf(rooms, header);
    if (target.isEmpty()) {
        const bool foreign = !quoted || header.endsWith(".moc"_L1);
        return foreign ? QString() : u"includes \"%1\", which names no room: write \"room/file.h\""_s.arg(header);
    }
    if (!rooms.at(room).contains(target))
        return u"room %1 may not include %2"_s.arg(room, header);
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
                if (name == u"*" || known == name ||
                    (known.startsWith(name) && known.mid(name.size()).startsWith(u'/')))
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
    static const QRegularExpression include(uR"(^\s*#\s*include\s*([<"])([^>"]+)[>"])"_s);
    static const QRegularExpression systemHeader(
        uR"(^((unistd|windows|fcntl|dlfcn|dirent|io|direct|spawn|signal|pthread)\.h|sys/.*|csignal)$)"_s,
        QRegularExpression::CaseInsensitiveOption);

    QStringList found;
    const auto report = [&](qsizetype line, const QString &what) {
        found << u"%1:%2: %3"_s.arg(path, QString::number(line), what);
    };
    const bool inSources = path.startsWith(u"src/");
    const bool isCpp = path.endsWith(u".cpp") || path.endsWith(u".h");
    const bool mayCallSystem = path.startsWith(u"src/platform/") || path.startsWith(u"tests/platform/");
    const QString room = inSources ? roomOf(rooms, QStringView(path).mid(4)) : QString();
    if (inSources && isCpp && room.isEmpty())
        report(1, u"lies in no room of tests/arch/rooms.txt"_s);

    QList<QStringView> lines = text.split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    if (lines.size() > LongestFile)
        report(lines.size(), u"the file is longer than %1 lines"_s.arg(LongestFile));

    const qsizetype head = !lines.isEmpty() && lines[0].startsWith(u"#!") ? 1 : 0;
    if (lines.size() < head + 2 || !lines[head].contains("SPDX-FileCopyrightText: "_L1) ||
        !lines[head + 1].contains("SPDX-License-Identifier: GPL-3.0-or-later"_L1))
        report(head + 1, u"the two-line SPDX header is missing"_s);

    // Two rooms may have a class of the same name; in one namespace the linker would take one for the other.
    const QString subject = room.startsWith(u"platform/") ? room.section(u'/', 1, 1) : room.section(u'/', 0, 0);
    static const QRegularExpression opening(uR"(^namespace kalvenor(::\w+)*)"_s);
    bool opensOwn = !inSources || !path.endsWith(u".h");

    const QString ownHeader = path.mid(path.indexOf(u'/') + 1).chopped(4) + u".h"_s;
    bool ownHeaderDue = hasHeader && path.endsWith(u".cpp");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!isCpp)
            continue;
        if (const auto space = opening.match(lines[i]); inSources && space.hasMatch()) {
            if (space.capturedLength() == u"namespace kalvenor"_s.size())
                report(i + 1, u"names of all rooms would meet here: open namespace kalvenor::%1"_s.arg(subject));
            opensOwn |= space.captured().section(u"::"_s, 1, 1) == subject;
        }
        const auto match = include.match(lines[i]);
        if (!match.hasMatch())
            continue;
        const QString header = match.captured(2);
        if (std::exchange(ownHeaderDue, false) && header != ownHeader)
            report(i + 1, u"the first include must be \"%1\""_s.arg(ownHeader));
        if (!mayCallSystem && systemHeader.match(header).hasMatch())
            report(i + 1, u"<%1> belongs to src/platform"_s.arg(header));
        if (!room.isEmpty()) {
            if (const QString fault = includeFault(rooms, room, header, match.captured(1) == u"\""); !fault.isEmpty())
                report(i + 1, fault);
        }
    }
    if (!opensOwn)
        report(1, u"does not open namespace kalvenor::%1"_s.arg(subject));
    if (ownHeaderDue)
        report(1, u"does not include \"%1\""_s.arg(ownHeader));
    return found;
}

} // namespace kalvenor::arch
