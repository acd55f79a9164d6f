// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/host.h"

#include "support/errors.h"
#include "support/fakedesktop.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using host::Host;

namespace {

basic::WindowsPath operator""_w(const char *text, std::size_t)
{
    return basic::WindowsPath(QString::fromLatin1(text));
}

} // namespace

TEST(Uebergeordnetesverzeichnis, CutsAtTheLastBackslash)
{
    EXPECT_EQ(host::uebergeordnetesverzeichnis("C:\\QV\\Kalvenor"_w), "C:\\QV"_w);
    EXPECT_EQ(host::uebergeordnetesverzeichnis("C:\\"_w), "C:"_w);
    EXPECT_EQ(host::uebergeordnetesverzeichnis("\\home\\a.b\\QV"_w), "\\home\\a.b"_w);
    EXPECT_EQ(host::uebergeordnetesverzeichnis("\\Kalvenor"_w), ""_w);
    EXPECT_EQ(test::kindOf([] { host::uebergeordnetesverzeichnis("Kalvenor"_w); }),
              basic::ErrorKind::InvalidProcedureCall)
        << "a path without a backslash has no parent";
}

class HostTest : public testing::Test {
protected:
    void write(const QString &name, const QByteArray &content) { test::writeFile(folder.filePath(name), content); }
    basic::WindowsPath path(const QString &name) const { return basic::windowsPath(folder.filePath(name)); }
    QTemporaryDir folder;
    test::FakeDesktop desktop;
};

TEST_F(HostTest, ReadsSettings)
{
    write("programm.ini", "[Ansicht]\r\nSprache=English\r\nLang=" + QByteArray(400, 'x') + "\r\nNul=ab" +
                              QByteArray(1, '\0') + "cd\r\nUmlaut=M\xfcnchen\r\nLeer=\r\n");
    const Host host(path("Kalvenor"), desktop);
    const basic::WindowsPath file = path("programm.ini");
    EXPECT_EQ(host.inilesen(file, "ANSICHT", "sprache", "Deutsch"), "English");
    EXPECT_EQ(host.inilesen(file, "Ansicht", "Lang", "").size(), 255);
    EXPECT_EQ(host.inilesen(file, "Ansicht", "Nul", ""), "ab");
    EXPECT_EQ(host.inilesen(file, "Ansicht", "Umlaut", ""), u"München"_s);
    EXPECT_EQ(host.inilesen(file, "Ansicht", "Leer", "Vorgabe"), "");
    EXPECT_EQ(host.inilesen(file, "Ansicht", "Fehlt", "Vorgabe"), "Vorgabe");
    EXPECT_EQ(host.inilesen(path("fehlt.ini"), "Ansicht", "Sprache", "Deutsch"), "Deutsch");
    EXPECT_EQ(host.inilesen(path("PROGRAMM.INI"), "Ansicht", "Sprache", "Deutsch"), "English");
}

TEST_F(HostTest, MapsDriveLetters)
{
    const QString windows = folder.filePath(u"jürgen/windows"_s);
    const QString other = folder.filePath(u"Łukasz"_s);
    ASSERT_TRUE(QDir(folder.path()).mkpath("Kalvenor"));
    for (const bool utf8 : {true, false}) {
        ASSERT_TRUE(QDir(windows).mkpath("QV"));
        ASSERT_TRUE(QDir().mkpath(other));
        write("Kalvenor/Kalvenor.ini", "[Laufwerke]\r\nc=" + (utf8 ? windows.toUtf8() : windows.toLatin1()) +
                                           "\r\nE=" + other.toUtf8() + "\r\n");
        write(u"jürgen/windows/QV/Familie.MDB"_s, "x");
        write(u"Łukasz/f.mdb"_s, "x");
        const Host host(path("Kalvenor"), desktop);
        EXPECT_EQ(host.native("C:\\qv\\familie.mdb"_w).text(), windows + "/QV/Familie.MDB");
        EXPECT_EQ(host.dir("c:\\QV\\FAMILIE.mdb"_w), "Familie.MDB");
        EXPECT_EQ(host.dir("e:\\F.mdb"_w), "f.mdb");
        EXPECT_EQ(host.dir("D:\\QV\\Familie.mdb"_w), "");
    }
}

// The host writes Windows-1252; UTF-8 counts where only its reading leads to something.
TEST_F(HostTest, ReadsPathsOfTheHost)
{
    const QString ansi = folder.filePath(u"Ã¼"_s);
    const QString utf8 = folder.filePath(u"ü"_s);
    write("programm.ini", "[QV-Files]\r\n0=" + path("").text().toLatin1() + "\\\xC3\xBC\r\n1=" +
                              path("").text().toLatin1() + "\\j\xFCrgen\r\n2=" + QByteArray(400, 'x') + "\r\n");
    const Host host(path("Kalvenor"), desktop);
    const auto read = [&](const char *key) {
        return host.readPath(path("programm.ini"), "QV-Files", key, "D:\\"_w);
    };
    const auto native = [&](const char *key) {
        return QDir::cleanPath(host.native(read(key)));
    };
    EXPECT_EQ(native("0"), ansi);
    write(u"ü"_s, "x");
    EXPECT_EQ(native("0"), utf8);
    write(u"Ã¼"_s, "x");
    EXPECT_EQ(native("0"), ansi);
    EXPECT_EQ(native("1"), folder.filePath(u"jürgen"_s));
    EXPECT_EQ(read("2").text().size(), 255);
    EXPECT_EQ(read("3"), "D:\\"_w);
}

TEST_F(HostTest, PutsWindowsOnTopOnlyWhereTheSettingIsOne)
{
    Host host(path("Kalvenor"), desktop);
    for (const QString off : {"0", "", "ja", "2", "10"}) {
        host.AddInonTop = off;
        EXPECT_FALSE(host.fensteroben(nullptr, -1, true)) << off.toStdString();
    }
    EXPECT_TRUE(desktop.placements.empty());

    host.AddInonTop = "1";
    for (const int onTop : {-1, 0, 1})
        EXPECT_TRUE(host.fensteroben(nullptr, onTop, onTop != 0));
    ASSERT_EQ(desktop.placements.size(), 3U);
    EXPECT_EQ(desktop.placements[0].place, desktop::StackPlace::TopMost);
    EXPECT_EQ(desktop.placements[1].place, desktop::StackPlace::NotTopMost);
    EXPECT_FALSE(desktop.placements[1].activate);
    EXPECT_EQ(desktop.placements[2].place, desktop::StackPlace::Top);
}
