// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/storage/replacement.h"
#include "platform/storage/writerlock.h"
#include "support/errors.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <thread>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::storage;
using basic::Fault;

namespace {

const QByteArray Jet("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24), Ace("\0\1\0\0Standard ACE DB\0\2\0\0\0", 24);

struct Gate : testing::Test {
    basic::NativePath path(const QString &name) const { return basic::NativePath(folder.filePath(name)); }
    void put(const QString &name, const QByteArray &content) const { test::writeFile(path(name), content); }
    QByteArray get(const QString &name) const { return test::contentOf(path(name)); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    /// What both the look ahead and the writing say.
    Fault refusal(const QString &name, Origin origin) const
    {
        const Fault ahead = test::faultOf([&] { checkTarget(path(name), origin); });
        const Fault written = test::faultOf([&] { replaceFileSafely(path(name), "new", nullptr, origin); });
        EXPECT_EQ(ahead, written) << name.toStdString();
        return written;
    }
    QTemporaryDir folder;
};

TEST_F(Gate, NothingOfOursReplacesOtherPeoplesData)
{
    put("jet.pdf", Jet);
    put("ace", Ace);
    put("familie.mdb", Jet);
    put("programm.ini", "[Ansicht]");
    put("text.pdf", "old");
    put("Kalvenor.ini", "old");
    const struct {
        const char *name;
        Origin origin;
        Fault fault;
    } rows[] = {
        {"jet.pdf", Origin::Named, Fault::TargetIsDatabase},
        {"jet.pdf", Origin::Beside, Fault::TargetIsDatabase},
        {"jet.pdf", Origin::Settings, Fault::TargetIsDatabase},
        {"ace", Origin::Named, Fault::TargetIsDatabase},
        {"familie.mdb", Origin::Named, Fault::TargetIsDatabase},
        {"none.MDB", Origin::Named, Fault::TargetIsDatabase},
        {"none.ldb", Origin::Beside, Fault::TargetIsDatabase},
        {"programm.ini", Origin::Named, Fault::TargetIsHostSettings},
        {"PROGRAMM.INI", Origin::Beside, Fault::TargetIsHostSettings},
        {"text.pdf", Origin::Named, Fault::None},
        {"Kalvenor.ini", Origin::Settings, Fault::None},
        {"none.pdf", Origin::Named, Fault::None},
        {"none.jpg", Origin::Beside, Fault::None},
        {"new.mdb", Origin::NewHost, Fault::None},
    };
    for (const auto &row : rows)
        EXPECT_EQ(refusal(row.name, row.origin), row.fault) << row.name;
    EXPECT_EQ(get("jet.pdf"), Jet);
    EXPECT_EQ(get("familie.mdb"), Jet);
    EXPECT_EQ(get("programm.ini"), "[Ansicht]");
    EXPECT_EQ(get("text.pdf"), "new");
    EXPECT_FALSE(files().contains("none.MDB"));
}

#ifndef Q_OS_WIN
TEST_F(Gate, LinksCountAsWhatTheyLeadTo)
{
    put("familie.mdb", Jet);
    put("programm.ini", "[Ansicht]");
    put("photo", "only one");
    const auto link = [this](const char *target, const char *name) {
        ASSERT_TRUE(QFile::link(path(target), path(name)));
    };
    link("familie.mdb", "a.pdf");
    link("a.pdf", "b.pdf");
    link("nowhere.mdb", "c.pdf");
    link("programm.ini", "Kalvenor.ini");
    link("photo", "r-Alter.JPG");
    link("photo", "named.jpg");
    ASSERT_EQ(
        ::link(QFile::encodeName(path("familie.mdb")).constData(), QFile::encodeName(path("hard.pdf")).constData()), 0);
    EXPECT_EQ(refusal("a.pdf", Origin::Named), Fault::TargetIsDatabase);
    EXPECT_EQ(refusal("b.pdf", Origin::Named), Fault::TargetIsDatabase);
    EXPECT_EQ(refusal("c.pdf", Origin::Named), Fault::TargetIsDatabase);
    EXPECT_EQ(refusal("hard.pdf", Origin::Named), Fault::TargetIsDatabase);
    EXPECT_EQ(refusal("Kalvenor.ini", Origin::Settings), Fault::TargetIsHostSettings);
    EXPECT_EQ(refusal("r-Alter.JPG", Origin::Beside), Fault::TargetIsLink);
    EXPECT_EQ(get("photo"), "only one");
    EXPECT_EQ(refusal("named.jpg", Origin::Named), Fault::None);
    EXPECT_EQ(get("photo"), "new") << "who names a link means what it leads to";
    EXPECT_EQ(get("familie.mdb"), Jet);
}
#endif

TEST_F(Gate, WhatAKilledRunLeftIsCollectedButNothingElse)
{
    const auto putOld = [this](const QString &name, int minutes) {
        put(name, "half");
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-60 * minutes), QFile::FileModificationTime));
    };
    putOld("a.pdf.kalvenor1", 61);
    putOld("a.pdf.kalvenor2", 59); // may be at work
    putOld("a.pdf.kalvenor4", 1000);
    putOld("a.pdf.old", 10000);
    EXPECT_TRUE(replaceFileSafely(path("a.pdf"), "new", nullptr));
    EXPECT_EQ(files(), (QStringList{"a.pdf", "a.pdf.kalvenor2", "a.pdf.old"}));

    for (int i = 1; i <= 20; ++i) // as many killed runs within the hour as there are names
        putOld(u"a.pdf.kalvenor%1"_s.arg(i), i == 7 ? 30 : 20);
    EXPECT_TRUE(replaceFileSafely(path("a.pdf"), "newer", nullptr));
    EXPECT_EQ(get("a.pdf"), "newer");
    EXPECT_FALSE(files().contains("a.pdf.kalvenor7"));
    EXPECT_TRUE(files().contains("a.pdf.kalvenor1"));
}

TEST_F(Gate, ALockKeepsOthersOutAndOutlivesNobody)
{
    put("a.lock", "999999999\nkalvenor\n" + QSysInfo::machineHostName().toUtf8() + "\n"); // of a killed run
    int inside = 0;
    bool alone = true;
    const auto work = [&] {
        for (int i = 0; i < 20; ++i) {
            const WriterLock lock(path("a"));
            ASSERT_TRUE(lock.isHeld());
            alone = alone && ++inside == 1;
            std::this_thread::yield();
            --inside;
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_TRUE(alone);
    EXPECT_EQ(files(), QStringList());
    EXPECT_FALSE(WriterLock(path("missing/a")).isHeld());
}

} // namespace
