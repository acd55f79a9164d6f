// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/replacement.h"

#include "../../support/faultystorage.h"
#include "support/files.h"

#include <array>

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::storage;

namespace {

class Files : public testing::Test {
protected:
    basic::NativePath path(const char *name) const
    {
        return basic::NativePath(m_folder.filePath(QString::fromLatin1(name)));
    }
    void put(const char *name, const QByteArray &content) const { test::writeFile(path(name), content); }
    QByteArray get(const char *name) const { return test::contentOf(path(name)); }

    QTemporaryDir m_folder;
};

#ifndef Q_OS_WIN
// Root may read and write everything; as nobody the modes count.
class AsNobody {
public:
    AsNobody() : m_changed(::geteuid() == 0 && ::seteuid(65534) == 0) {}
    ~AsNobody()
    {
        if (m_changed && ::seteuid(0) != 0)
            ADD_FAILURE() << "cannot become root again";
    }
    AsNobody(const AsNobody &) = delete;
    AsNobody &operator=(const AsNobody &) = delete;

private:
    bool m_changed;
};
#endif

} // namespace

TEST_F(Files, ReadAndWriteInPlace)
{
    put("a", "0123456789");
    basic::Argument error;
    File file = File::open(path("a"), File::Mode::ReadWrite, &error);
    ASSERT_TRUE(file.isOpen()) << error.text.toStdString();
    EXPECT_EQ(file.size(), 10);
    EXPECT_NEAR(static_cast<double>(file.state().modifiedNs) / 1e6,
                static_cast<double>(QFileInfo(path("a")).lastModified().toMSecsSinceEpoch()), 2);

    std::array<std::uint8_t, 4> four = {};
    ASSERT_TRUE(file.readAt(6, four));
    EXPECT_EQ(four, (std::array<std::uint8_t, 4>{'6', '7', '8', '9'}));
    EXPECT_FALSE(file.readAt(7, four));
    EXPECT_FALSE(file.errorText().isEmpty());
    EXPECT_FALSE(file.readAt(-1, four));

    const std::array<std::uint8_t, 2> two = {'x', 'y'};
    EXPECT_TRUE(file.writeAt(3, two));
    EXPECT_TRUE(file.sync());
    EXPECT_EQ(get("a"), "012xy56789");

    File moved = std::move(file);
    EXPECT_TRUE(moved.isOpen());
    File reader = File::open(path("a"), File::Mode::Read, nullptr);
    EXPECT_FALSE(reader.writeAt(0, two));
    EXPECT_EQ(get("a"), "012xy56789");
}

TEST_F(Files, WhyAFileCannotBeOpened)
{
    put("readonly", "x");
    put("secret", "x");
    put("secretfolder-file", "x");
#ifndef Q_OS_WIN
    ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path("readonly")).constData(), 0444), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path("secret")).constData(), 0), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0666), 0);
    const AsNobody nobody;
#endif
    const struct {
        const char *name;
        File::Mode mode;
        FileFault fault;
    } rows[] = {
        {"missing", File::Mode::Read, FileFault::NotFound},
        {"missing", File::Mode::ReadWrite, FileFault::NotFound},
        {"readonly/below", File::Mode::Read, FileFault::NotFound},
        {".", File::Mode::Read, FileFault::IsFolder},
        {".", File::Mode::ReadWrite, FileFault::IsFolder},
        {"readonly", File::Mode::Read, FileFault::None},
#ifndef Q_OS_WIN
        {"readonly", File::Mode::ReadWrite, FileFault::ReadOnly},
        {"secret", File::Mode::Read, FileFault::PermissionDenied},
        {"secret", File::Mode::ReadWrite, FileFault::PermissionDenied},
        {"pipe", File::Mode::Read, FileFault::Other},
#endif
    };
    for (const auto &row : rows) {
        basic::Argument error;
        const File file = File::open(path(row.name), row.mode, &error);
        EXPECT_EQ(file.fault(), row.fault) << row.name;
        EXPECT_EQ(file.isOpen(), row.fault == FileFault::None) << row.name;
        EXPECT_EQ(error.isEmpty(), file.isOpen()) << row.name;
    }
}

TEST_F(Files, Replace)
{
    put("a", "old and long");
    ASSERT_TRUE(QFile::setPermissions(path("a"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const auto mode = QFile::permissions(path("a"));
    basic::Argument why;
    ASSERT_TRUE(replaceFileSafely(path("a"), "new", &why)) << why.text.toStdString();
    EXPECT_EQ(get("a"), "new");
    EXPECT_EQ(QFile::permissions(path("a")), mode);
    EXPECT_TRUE(replaceFileSafely(path("fresh"), "", &why));
    EXPECT_EQ(get("fresh"), "");

#ifndef Q_OS_WIN
    ASSERT_TRUE(QFile::link(path("a"), path("link")));
    EXPECT_TRUE(replaceFileSafely(path("link"), "through", &why));
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(get("a"), "through");

    {
        put("readonly", "old");
        ASSERT_EQ(::chmod(QFile::encodeName(path("readonly")).constData(), 0444), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(m_folder.path()).constData(), 0777), 0);
        const AsNobody nobody;
        EXPECT_FALSE(replaceFileSafely(path("readonly"), "new", &why));
        EXPECT_EQ(get("readonly"), "old");
    }
#endif

    EXPECT_FALSE(replaceFileSafely(path("nofolder/a"), "x", &why));
    EXPECT_FALSE(why.isEmpty());
    EXPECT_FALSE(replaceFileSafely(basic::NativePath(m_folder.path()), "x", nullptr));
    EXPECT_FALSE(replaceFileSafely({}, "x", nullptr));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System).filter(u"a."_s).size(), 0)
        << "no temporary file stays";
}

TEST_F(Files, ReplaceLeavesTheOldOrTheNewOne)
{
    using namespace kalvenor::test;
    FaultyStorage storage;
    const QByteArray content(200'000, 'n');
    for (const Fault fault : {Fault::Fails, Fault::FailsFromOn, Fault::CutShort}) {
        bool done = false;
        atEachCall(
            storage, fault, [&] { put("a", "old"); }, [&] { done = replaceFileSafely(path("a"), content, nullptr); },
            [&](Call struck) {
                EXPECT_EQ(done, struck == Call::None || fault == Fault::CutShort);
                EXPECT_EQ(get("a"), done || struck == Call::SyncFolder ? content : "old");
                const QStringList files = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
                if (fault == Fault::FailsFromOn) { // nothing can be removed either
                    for (const QString &name : files)
                        EXPECT_TRUE(name == u"a" || QFile::remove(m_folder.filePath(name)));
                } else {
                    EXPECT_EQ(files, QStringList{u"a"_s});
                }
            });
    }
}

TEST_F(Files, LocksKeepOthersOut)
{
    put("a", "0123456789");
    File one = File::open(path("a"), File::Mode::ReadWrite, nullptr);
    {
        File two = File::open(path("a"), File::Mode::ReadWrite, nullptr);
        EXPECT_EQ(one.lock(4, 2), File::Lock::Taken);
        EXPECT_EQ(two.lock(5, 9), File::Lock::HeldElsewhere);
        EXPECT_EQ(two.lock(6, 1000), File::Lock::Taken);
        EXPECT_TRUE(one.unlock(4, 2));
        EXPECT_EQ(two.lock(4, 2), File::Lock::Taken);
        EXPECT_EQ(one.lock(0, 5), File::Lock::HeldElsewhere);
    }
    EXPECT_EQ(one.lock(0, 2000), File::Lock::Taken) << "closed, the other one holds nothing";
}
