// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/path.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor::basic;

namespace {

class Paths : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(QDir(root()).mkpath(u"Daten/QV"_s));
        for (const char *name : {"Daten/Familie.MDB", "Daten/b.txt", "Daten/A.TXT", "Daten/.geheim", "Daten/[x].txt",
                                 "Daten/QV/x", "daten", "Daten/w?r*.kvl"}) {
            kalvenor::test::writeFile(root() + u'/' + QString::fromLatin1(name));
        }
    }
    QString root() const { return m_folder.path(); }
    QString windowsRoot() const { return root().replace(u'/', u'\\'); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Paths, Native)
{
    const DriveMap drives = {{u'C', root()}, {u'D', root() + u"/Daten/"_s}};
    const struct {
        QString text;
        QString native;
    } rows[] = {
        {{}, {}},
        {windowsRoot() + "\\Daten\\Familie.MDB", root() + "/Daten/Familie.MDB"},
        {windowsRoot() + "\\DATEN\\familie.mdb", root() + "/Daten/Familie.MDB"},
        {root() + "/dATEN/qv/X", root() + "/Daten/QV/x"},
        {windowsRoot() + "\\daten", root() + "/daten"},
        {windowsRoot() + "\\daten\\.GEHEIM", root() + "/Daten/.geheim"},
        {windowsRoot() + "\\DATEN\\Neu.ini", root() + "/Daten/Neu.ini"},
        {windowsRoot() + "\\Daten\\NEU\\qv\\x", root() + "/Daten/NEU/qv/x"},
        {windowsRoot() + "\\DATEN\\qv\\..\\b.TXT", root() + "/Daten/QV/../b.txt"},
        {"c:\\daten\\QV\\x", root() + "/Daten/QV/x"},
        {"D:familie.mdb", root() + "/Daten/Familie.MDB"},
        {"C:\\", root()},
        {"C:", root()},
        {"\\\\server\\Share\\x", "//server/Share/x"},
        {"gibt\\es\\nicht", "gibt/es/nicht"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(nativePath(WindowsPath(row.text), drives).text().toStdString(), row.native.toStdString());

    const QString unmapped = nativePath(WindowsPath(u"X:\\a\\b.txt"_s), drives);
    EXPECT_FALSE(QFile(unmapped).open(QIODevice::ReadWrite)) << "it must not come to be in the current folder";
    EXPECT_EQ(windowsPath(unmapped).text(), u"X:\\a\\b.txt"_s);
}

TEST_F(Paths, Windows)
{
    const DriveMap drives = {{u'C', u"/media/win"_s}, {u'D', u"/media/win/Data/"_s}};
    const struct {
        const char *native;
        const char *text;
    } rows[] = {
        {"/media/win/x/y", "C:\\x\\y"},
        {"/media/win/Data/x", "D:\\x"},
        {"/media/win", "C:\\"},
        {"/media/window", "\\media\\window"},
        {"a/b", "a\\b"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(windowsPath(row.native, drives).text().toStdString(), row.text);
}

TEST_F(Paths, DirectoryListing)
{
    const struct {
        const char *path;
        const char *name;
    } rows[] = {
        {"\\Daten\\Familie.MDB", "Familie.MDB"},
        {"\\daten\\FAMILIE.mdb", "Familie.MDB"},
        {"\\Daten\\fehlt.mdb", ""},
        {"\\Daten\\QV", ""},
        {"\\Daten\\.geheim", ""},
        {"\\Daten\\[X].txt", "[x].txt"},
        {"\\Daten\\W?R*.KVL", "w?r*.kvl"},
        {"\\Daten\\*.txt", ""},
        {"\\Daten\\?.TXT", ""},
        {"\\D?ten\\b.txt", ""},
        {"\\Daten\\b.txt\\", ""},
        {"\\Daten\\QV\\", ""},
        {"\\Daten\\b.txt/", ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(directoryListing(WindowsPath(windowsRoot() + row.path)).toStdString(), row.name) << row.path;
    EXPECT_EQ(directoryListing({}), QString());
}

TEST(FileNamePart, LeadsToNoOtherFolder)
{
    const std::pair<const char16_t *, const char16_t *> rows[] = {
        {u"Altersstatistik", u"Altersstatistik"},
        {u"\\..\\..\\.\\elsewhere\\X", u"elsewhereX"},
        {u"/../a/b", u"ab"},
        {u"..", u""},
        {u"A<>:\"|?*B\r\n\t\u0085\u2028C", u"ABC"},
        {u"Ä ł.v1", u"Ä ł.v1"},
        {u"", u""},
    };
    for (const auto &[text, part] : rows)
        EXPECT_EQ(fileNamePart(QString::fromUtf16(text)), QString::fromUtf16(part));
}
