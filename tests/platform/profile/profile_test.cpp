// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile/profile.h"

#include "../../support/faultystorage.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

using namespace kalvenor::profile;

namespace {

QByteArray wide(QStringView text)
{
    QByteArray bytes("\xFF\xFE");
    for (const QChar unit : text) {
        bytes += static_cast<char>(unit.cell());
        bytes += static_cast<char>(unit.row());
    }
    return bytes;
}

class Profile : public testing::Test {
protected:
    void put(const QByteArray &content) const { kalvenor::test::writeFile(m_file, content); }
    QByteArray get() const { return kalvenor::test::contentOf(m_file); }
    QByteArray read(const QByteArray &section, const QByteArray &key, const QByteArray &fallback = "dflt",
                    int size = 256) const
    {
        return getPrivateProfileString(section, key, fallback, size, m_file);
    }

    QTemporaryDir m_folder;
    const QString m_file = m_folder.filePath(u"Test.ini"_s);
};

} // namespace

TEST_F(Profile, Read)
{
    const struct {
        const char *content;
        const char *value; ///< of key "Key" in section "Sec"
    } rows[] = {
        {"[Sec]\r\nKey=1\r\n", "1"},
        {"[Sec]\nKey=1", "1"},
        {"[Sec]\rKey=1\rB=2", "1"},
        {"[sEC]\r\nkEY=1\r\n", "1"},
        {" \t[ Sec\v] rest\r\n\t Key \t= \v 1 2 \t\r\n", "1 2"},
        {"[Sec\r\nKey=1\r\n", "1"},
        {"[Sec]x]\r\nKey=1\r\n", "1"},
        {"[Sec]\r\nKey=1\r\nKey=2\r\n", "1"},
        {"[Sec]\r\nA=1\r\n[Sec]\r\nKey=2\r\n", "dflt"},
        {"[Other]\r\nKey=1\r\n[Sec]\r\nKey=2\r\n", "2"},
        {"[Sec]\r\nA=1\r\n[Other]\r\nKey=2\r\n", "dflt"},
        {"Key=1\r\n", "dflt"},
        {"[Sec]\r\nKey=\"a b \"\r\n", "a b "},
        {"[Sec]\r\nKey='a'\r\n", "a"},
        {"[Sec]\r\nKey=\"'a'\"\r\n", "'a'"},
        {"[Sec]\r\nKey=\"a'\r\n", "\"a'"},
        {"[Sec]\r\nKey=\"\r\n", "\""},
        {"[Sec]\r\nKey=\"\"\r\n", ""},
        {"[Sec]\r\n  ;Key=1\r\nKey=2;3 #4\r\n", "2;3 #4"},
        {"[Sec]\r\n#Key=1\r\n", "dflt"},
        {"[Sec]\r\nKey=a=b\r\n", "a=b"},
        {"[Sec]\r\nKey=\r\n", ""},
        {"[Sec]\r\nKey\r\n", "dflt"},
        {"\xEF\xBB\xBF[Sec]\r\nKey=1\r\n", "dflt"},
        {"\xEF\xBB\xBF\r\n[Sec]\r\nKey=1\r\n", "1"},
        {"[Sec]\r\nKey=\xE4\x80\r\n", "\xE4\x80"},
        {"", "dflt"},
    };
    for (const auto &row : rows) {
        put(row.content);
        EXPECT_EQ(read("Sec", "Key"), row.value) << row.content;
        EXPECT_EQ(read("  Sec ", " Key  "), row.value) << row.content;
    }
    put("[S\xC4]\r\nKey=1\r\n");
    EXPECT_EQ(read("S\xE4", "Key"), "dflt") << "only ASCII letters are alike";
    put("[Sec]\r\n#Key=1\r\n");
    EXPECT_EQ(read("Sec", "#Key"), "1") << "only ; begins a comment";
}

TEST_F(Profile, DefaultAndSize)
{
    EXPECT_EQ(read("Sec", "Key", "  d  "), "  d");
    EXPECT_EQ(read("Sec", "Key", "   "), "");
    EXPECT_EQ(getPrivateProfileString("Sec", "Key", "d ", 256, {}), "d");
    EXPECT_EQ(getPrivateProfileString("Sec", "Key", "d", 256, m_folder.path()), "d");
    put("[Sec]\r\nKey=" + QByteArray(300, 'x') + "\r\n");
    EXPECT_EQ(read("Sec", "Key"), QByteArray(255, 'x'));
    EXPECT_EQ(read("Sec", "Fehlt", "lang", 3), "la");
    EXPECT_EQ(read("Sec", "Key", "d", 1), "");
    EXPECT_EQ(read("Sec", "Key", "d", 0), "");
}

TEST_F(Profile, Write)
{
    using Text = std::optional<QByteArray>;
    const struct {
        const char *before;
        const char *section;
        Text key;
        Text value;
        const char *after;
    } rows[] = {
        // An existing key: only its value changes.
        {"[sec]\nkEY=1\n;c\n", "Sec", "Key", "2", "[sec]\nkEY=2\n;c\n"},
        {"[Sec]\r\n  Key = 1 \r\nB=2", "Sec", "Key", "x y ", "[Sec]\r\n  Key =x y \r\nB=2"},
        {"[Sec]\r\nKey=1", "Sec", "Key", "", "[Sec]\r\nKey="},
        {"[Sec]\r\nKey  \r\n", "Sec", "Key", "2", "[Sec]\r\nKey=2\r\n"},
        {"[Sec]\r\nKey=1\r\nKey=2\r\n", "Sec", "Key", "3", "[Sec]\r\nKey=3\r\nKey=2\r\n"},
        // A new key: behind the last key, before trailing comments and blank lines.
        {"[Sec]\r\nA=1\r\n\r\n;c\r\n[B]\r\n", "Sec", " Key ", "2", "[Sec]\r\nA=1\r\nKey=2\r\n\r\n;c\r\n[B]\r\n"},
        {"[Sec]\r\n;c\r\n", "Sec", "Key", "2", "[Sec]\r\nKey=2\r\n;c\r\n"},
        {"[Sec]", "Sec", "Key", "2", "[Sec]\r\nKey=2\r\n"},
        {"[Sec]\r\nA=1", "Sec", "Key", "2", "[Sec]\r\nA=1\r\nKey=2\r\n"},
        {"[Sec]\r\nA=1\r\n[Sec]\r\nKey=1\r\n", "Sec", "Key", "2", "[Sec]\r\nA=1\r\nKey=2\r\n[Sec]\r\nKey=1\r\n"},
        // A new section: at the end, without a blank line.
        {"", " Sec ", "Key", "2", "[Sec]\r\nKey=2\r\n"},
        {"[A]\nB=1", "Sec", "Key", "2", "[A]\nB=1\r\n[Sec]\r\nKey=2\r\n"},
        {"[A]\r\nB=1\r\n", "Sec", "Key", "\"2\"", "[A]\r\nB=1\r\n[Sec]\r\nKey=\"2\"\r\n"},
        {"\xEF\xBB\xBF[Sec]\r\nKey=1\r\n", "Sec", "Key", "2", "\xEF\xBB\xBF[Sec]\r\nKey=1\r\n[Sec]\r\nKey=2\r\n"},
        // Deleting.
        {"[Sec]\r\nA=1\r\nKey=1\r\n;c\r\n", "Sec", "Key", {}, "[Sec]\r\nA=1\r\n;c\r\n"},
        {"[Sec]\r\nA=1\r\n", "Sec", "Key", {}, "[Sec]\r\nA=1\r\n"},
        {";c\n[sec]\nKey=1\n;d\n[B]\nC=1\n", "Sec", {}, {}, ";c\n[B]\nC=1\n"},
        {"[B]\r\n[Sec]\r\nKey=1", "Sec", {}, {}, "[B]\r\n"},
    };
    for (const auto &row : rows) {
        put(row.before);
        EXPECT_TRUE(writePrivateProfileString(row.section, row.key, row.value, m_file));
        EXPECT_EQ(get(), row.after) << "before: " << row.before;
        put(wide(QString::fromLatin1(row.before)));
        if (QByteArrayView(row.before).startsWith("\xEF"))
            continue;
        EXPECT_TRUE(writePrivateProfileString(row.section, row.key, row.value, m_file));
        EXPECT_EQ(get(), wide(QString::fromLatin1(row.after))) << "UTF-16, before: " << row.before;
    }
}

TEST_F(Profile, Utf16KeepsWhatWindows1252Lacks)
{
    put(wide(u"[Sec]\r\nA=\u0416\u20AC\u00E4\r\n;\u4E2D\r\n"));
    EXPECT_EQ(read("Sec", "A"), "?\x80\xE4");
    EXPECT_TRUE(writePrivateProfileString("Sec", "B", QByteArray("\x80"), m_file));
    EXPECT_EQ(get(), wide(u"[Sec]\r\nA=\u0416\u20AC\u00E4\r\nB=\u20AC\r\n;\u4E2D\r\n"));
}

TEST_F(Profile, SeveralValuesChangeTheFileOnce)
{
    put("[B]\nX=1\n");
    const ProfileValue values[] = {{"Sec", "Key", "1"}, {"b", "x", "2"}, {"Sec", "Key", "3"}, {"Sec", "L", ""}};
    EXPECT_TRUE(writePrivateProfileStrings(values, m_file));
    EXPECT_EQ(get(), "[B]\nX=2\n[Sec]\r\nKey=3\r\nL=\r\n");
    EXPECT_FALSE(writePrivateProfileStrings(values, m_folder.path()));
    EXPECT_TRUE(writePrivateProfileStrings({}, m_folder.path()));
}

TEST_F(Profile, WriteMakesOrRefuses)
{
    EXPECT_TRUE(writePrivateProfileString("Sec", "Key", {}, m_file));
    EXPECT_FALSE(QFile::exists(m_file)) << "deleting makes no file";
    EXPECT_TRUE(writePrivateProfileString("Sec", "Key", "1", m_file));
    EXPECT_EQ(get(), "[Sec]\r\nKey=1\r\n");
    EXPECT_FALSE(writePrivateProfileString("Sec", "Key", "1", {}));
    EXPECT_FALSE(writePrivateProfileString("Sec", "Key", "1", m_folder.filePath(u"fehlt/x.ini"_s)));
    EXPECT_FALSE(writePrivateProfileString("Sec", "Key", {}, m_folder.filePath(u"fehlt/x.ini"_s)));
    EXPECT_FALSE(writePrivateProfileString("Sec", "Key", "1", m_folder.path()));
}

TEST_F(Profile, WritersLoseNoKeysOfEachOther)
{
    constexpr int writers = 4, keys = 50;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer)
        threads.emplace_back([this, writer] {
            for (int key = 0; key < keys; ++key)
                EXPECT_TRUE(
                    writePrivateProfileString(QByteArray::number(writer), QByteArray::number(key), "x", m_file));
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(get().count("=x"), writers * keys);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1) << "no lock stays";
}

TEST_F(Profile, ADatabaseIsNeverWritten)
{
    const QByteArray database = QByteArray("\0\1\0\0Standard Jet DB\0\1", 21) + QByteArray(100, '\0');
    put(database);
    EXPECT_FALSE(writePrivateProfileString("Sec", "Key", "1", m_file));
    EXPECT_EQ(get(), database);
}

TEST_F(Profile, StaysWholeWhereTheDiskFails)
{
    using namespace kalvenor::test;
    FaultyStorage storage;
    const QByteArray before = "[A]\r\nX=1\r\n", then = "[A]\r\nX=2\r\n[B]\r\nY=3\r\n";
    const ProfileValue values[] = {{"A", "X", "2"}, {"B", "Y", "3"}};
    for (const Fault fault : {Fault::Fails, Fault::CutShort}) {
        bool done = false;
        atEachCall(
            storage, fault, [&] { put(before); }, [&] { done = writePrivateProfileStrings(values, m_file); },
            [&](Call struck) {
                EXPECT_EQ(done, fault == Fault::CutShort || struck == Call::None);
                EXPECT_EQ(get(), done || struck == Call::SyncFolder ? then : before);
            });
    }
}
