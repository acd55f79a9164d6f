// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "arch/checker.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <stdexcept>

namespace kalvenor::arch {
namespace {

const QString head = u"// SPDX-FileCopyrightText: 2026 The Kalvenor authors\n"
                     "// SPDX-License-Identifier: GPL-3.0-or-later\n"_qs;

QString readText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

RoomTable rooms()
{
    return readRoomTable(readText(QStringLiteral(KALVENOR_SOURCE_DIR "/tests/arch/rooms.txt")));
}

TEST(Arch, SourceTreeKeepsItsRules)
{
    const RoomTable table = rooms();
    const QDir top(QStringLiteral(KALVENOR_SOURCE_DIR));
    int files = 0;
    for (const QString &folder : {u"src"_qs, u"tests"_qs, u"bench"_qs, u"cmake"_qs, u"fuzz"_qs}) {
        QDirIterator it(top.filePath(folder), {u"*.cpp"_qs, u"*.h"_qs, u"CMakeLists.txt"_qs, u"*.cmake"_qs},
                        QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const bool hasHeader = path.endsWith(u".cpp") && QFile::exists(path.chopped(4) + u".h"_qs);
            for (const QString &fault : violations(table, top.relativeFilePath(path), readText(path), hasHeader))
                ADD_FAILURE() << qPrintable(fault);
            ++files;
        }
    }
    EXPECT_GT(files, 20) << "the source tree was not found";
}

TEST(Arch, EveryRoomOfTheTreeStandsInTheTable)
{
    const RoomTable table = rooms();
    const QDir src(QStringLiteral(KALVENOR_SOURCE_DIR "/src"));
    QDirIterator it(src.path(), {u"CMakeLists.txt"_qs}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString room = src.relativeFilePath(QFileInfo(it.next()).path());
        if (room != u".") {
            EXPECT_TRUE(table.contains(room)) << qPrintable(room);
        }
    }
}

TEST(Arch, CheckerSeesViolations)
{
    const struct {
        const char *path;
        QString text;
        const char *fault; ///< "" where the file is well
    } cases[] = {
        {"src/platform/jet/a.cpp", head + u"#include \"platform/basic/error.h\"\n#include <QString>\n"_qs, ""},
        {"src/platform/jet/a.cpp", head + u"#include \"platform/dao/dao.h\"\n"_qs, ":3: room platform/jet may not"},
        {"src/platform/jet/a.cpp", head + u"#include <platform/dao/dao.h>\n"_qs, ":3: room platform/jet may not"},
        {"src/platform/print/a.h", head + u"\n  #  include \"app/main.h\"\n"_qs, ":4: room platform/print may not"},
        {"src/host/a.cpp", head + u"#include \"platform/dao/dao.h\"\n"_qs, ""},
        {"src/statistics/a.cpp", head + u"#include \"selection/a.h\"\n"_qs, "may not include selection/a.h"},
        {"src/settings/a.cpp", head + u"#include \"app/auswahl.h\"\n"_qs, "may not include app/auswahl.h"},
        {"src/demo/a.cpp", head + u"#include \"host/a.h\"\n"_qs, "may not include host/a.h"},
        {"src/app/a.cpp", head + u"#include \"demo/a.h\"\n#include \"a.moc\"\n"_qs, ""},
        {"src/host/a.cpp", head + u"#include \"b.h\"\n"_qs, "names no room"},
        {"src/attic/a.cpp", head, "lies in no room"},
        {"src/platformer/a.cpp", head, "lies in no room"},
        {"src/platform/jet/a.cpp", head + u"#include <unistd.h>\n"_qs, ""},
        {"src/report/a.cpp", head + u"#include <unistd.h>\n"_qs, "belongs to src/platform"},
        {"src/report/a.cpp", head + u"#include <Windows.h>\n"_qs, "belongs to src/platform"},
        {"tests/report/a.cpp", head + u"#include <sys/stat.h>\n"_qs, "belongs to src/platform"},
        {"src/report/a.cpp", u"#include <QString>\n"_qs, ":1: the two-line SPDX header"},
        {"src/report/a.cpp", QString(), "SPDX header"},
        {"tests/report/a.cpp", head + u"//\n"_qs.repeated(598), ""},
        {"tests/report/a.cpp", head + u"//\n"_qs.repeated(599), ":601: the file is longer"},
    };
    const RoomTable table = rooms();
    for (const auto &c : cases) {
        SCOPED_TRACE(c.path + std::string(" / ") + c.fault);
        const QString found = violations(table, QLatin1String(c.path), c.text).join(u'\n');
        EXPECT_EQ(found.isEmpty(), *c.fault == '\0') << qPrintable(found);
        EXPECT_TRUE(found.contains(QLatin1String(c.fault))) << qPrintable(found);
    }
}

TEST(Arch, CheckerSeesThatAHeaderIsNotTheFirst)
{
    const RoomTable table = rooms();
    const QString path = u"src/platform/jet/like.cpp"_qs;
    const QString own = u"#include \"platform/jet/like.h\"\n"_qs;
    const QString other = u"#include <vector>\n"_qs;
    EXPECT_TRUE(violations(table, path, head + own + other, true).isEmpty());
    EXPECT_TRUE(violations(table, path, head + other, false).isEmpty());
    EXPECT_EQ(violations(table, path, head + other + own, true).size(), 1);
    EXPECT_EQ(violations(table, path, head, true).size(), 1);
}

TEST(Arch, TableCannotHoldACycle)
{
    EXPECT_THROW(readRoomTable(u"a: b\nb:\n"), std::runtime_error);
    EXPECT_THROW(readRoomTable(u"a:\nnonsense\n"), std::runtime_error);
}

} // namespace
} // namespace kalvenor::arch
