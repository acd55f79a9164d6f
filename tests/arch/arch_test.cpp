// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "arch/checker.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kalvenor::arch {
namespace {

const QString Head = u"// SPDX-FileCopyrightText: 2026 The Kalvenor authors\n"
                     "// SPDX-License-Identifier: GPL-3.0-or-later\n"_s;

RoomTable rooms()
{
    return readRoomTable(QString::fromUtf8(test::contentOf(KALVENOR_SOURCE_DIR "/tests/arch/rooms.txt")));
}

TEST(Arch, SourceTreeKeepsItsRules)
{
    const RoomTable table = rooms();
    const QDir top(u"" KALVENOR_SOURCE_DIR ""_s);
    int files = 0;
    for (const QString &folder : {u"src"_s, u"tests"_s, u"bench"_s, u"cmake"_s, u"fuzz"_s}) {
        QDirIterator it(top.filePath(folder), {u"*.cpp"_s, u"*.h"_s, u"CMakeLists.txt"_s, u"*.cmake"_s}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const bool hasHeader = path.endsWith(u".cpp") && QFile::exists(path.chopped(4) + u".h"_s);
            const QString text = QString::fromUtf8(test::contentOf(path));
            for (const QString &fault : violations(table, top.relativeFilePath(path), text, hasHeader))
                ADD_FAILURE() << qPrintable(fault);
            ++files;
        }
    }
    EXPECT_GT(files, 20) << "the source tree was not found";
}

TEST(Arch, CheckerSeesViolations)
{
    const QString print = u"namespace kalvenor::print {\n"_s;
    const struct {
        const char *path;
        QString text;
        const char *fault; ///< "" where the file is well
    } cases[] = {
        {"src/platform/jet/reader/a.cpp", Head + u"#include \"platform/basic/error.h\"\n#include <QString>\n"_s, ""},
        {"src/platform/jet/reader/a.cpp", Head + u"#include \"platform/dao/dao.h\"\n"_s,
         ":3: room platform/jet/reader may not"},
        {"src/platform/jet/reader/a.cpp", Head + u"#include <platform/dao/dao.h>\n"_s,
         ":3: room platform/jet/reader may not"},
        {"src/platform/print/a.h", Head + print + u"  #  include \"app/window/main.h\"\n"_s,
         ":4: room platform/print may not"},
        {"src/host/a.cpp", Head + u"#include \"platform/dao/dao.h\"\n"_s, ""},
        {"src/statistics/ages/a.cpp", Head + u"#include \"selection/lists/a.h\"\n"_s,
         "may not include selection/lists/a.h"},
        {"src/settings/preview/a.cpp", Head + u"#include \"app/window/auswahl.h\"\n"_s,
         "may not include app/window/auswahl.h"},
        {"src/demo/host/a.cpp", Head + u"#include \"host/a.h\"\n"_s, "may not include host/a.h"},
        {"src/app/window/a.cpp", Head + u"#include \"demo/host/a.h\"\n#include \"a.moc\"\n"_s, ""},
        {"src/host/a.cpp", Head + u"#include \"b.h\"\n"_s, "names no room"},
        {"src/attic/a.cpp", Head, "lies in no room"},
        {"src/platformer/a.cpp", Head, "lies in no room"},
        {"src/platform/jet/reader/a.cpp", Head + u"#include <unistd.h>\n"_s, ""},
        {"src/report/export/a.cpp", Head + u"#include <unistd.h>\n"_s, "belongs to src/platform"},
        {"src/report/export/a.cpp", Head + u"#include <Windows.h>\n"_s, "belongs to src/platform"},
        {"tests/report/a.cpp", Head + u"#include <sys/stat.h>\n"_s, "belongs to src/platform"},
        {"src/platform/print/a.h", Head + print, ""},
        {"src/platform/chart/a.h", Head + print, "does not open namespace kalvenor::chart"},
        {"src/settings/preview/a.h", Head + u"namespace kalvenor::settings {\n"_s, ""},
        {"src/settings/preview/a.h", Head + u"namespace kalvenor::settingsroom {\n"_s, "does not open namespace"},
        {"src/settings/preview/a.cpp", Head + u"namespace kalvenor {\n"_s, ":3: names of all rooms would meet"},
        {"src/report/export/a.cpp", u"#include <QString>\n"_s, ":1: the two-line SPDX header"},
        {"src/report/export/a.cpp", QString(), "SPDX header"},
        {"tests/report/a.cpp", Head + u"//\n"_s.repeated(598), ""},
        {"tests/report/a.cpp", Head + u"//\n"_s.repeated(599), ":601: the file is longer"},
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
    const QString path = u"src/platform/jet/order/like.cpp"_s;
    const QString own = u"#include \"platform/jet/order/like.h\"\n"_s;
    const QString other = u"#include <vector>\n"_s;
    EXPECT_TRUE(violations(table, path, Head + own + other, true).isEmpty());
    EXPECT_TRUE(violations(table, path, Head + other, false).isEmpty());
    EXPECT_EQ(violations(table, path, Head + other + own, true).size(), 1);
    EXPECT_EQ(violations(table, path, Head, true).size(), 1);
}

TEST(Arch, TableCannotHoldACycle)
{
    EXPECT_THROW(readRoomTable(u"a: b\nb:\n"), std::runtime_error);
    EXPECT_THROW(readRoomTable(u"a:\nnonsense\n"), std::runtime_error);
}

} // namespace
} // namespace kalvenor::arch
