// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlage.h"

#include "platform/basic/error.h"
#include "support/errors.h"
#include "support/faultystorage.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

const QByteArray WholeFile =
    "\"C:\\QV\\B\xE4r.mdb\"\r\n\"Der \"\"alte\"\" Stamm\"\r\n\"{\\rtf1\r\nA, \"\"B\"\"\r\n}\"\r\n"
    "5\r\n0\r\n1\r\n0\r\n1\r\n0\r\n#FALSE#\r\n7\r\n-3\r\n2147483647\r\n";

Vorlage wholeVorlage()
{
    Vorlage vorlage;
    vorlage.familienpfad = basic::WindowsPath(u"C:\\QV\\Bär.mdb"_s);
    vorlage.statistik.titel = u"Der \"alte\" Stamm"_s;
    vorlage.statistik.rtf = "{\\rtf1\r\nA, \"B\"\r\n}";
    vorlage.statistik.grafiktyp = 5;
    vorlage.statistik.legende = false;
    vorlage.statistik.geschlechtalter = {1, 0, 1, 0};
    vorlage.statistik.nachGeburtsjahr = false;
    vorlage.counters = {7, -3, 2147483647};
    return vorlage;
}

struct VorlageFile : testing::Test {
    QTemporaryDir folder;
    basic::NativePath file{folder.filePath("a.kvl")};

    void put(const QByteArray &content) const { test::writeFile(file, content); }
    QByteArray content() const { return test::contentOf(file); }
    /// The fault that reading names, or "" where it succeeds.
    QString refusal() const
    {
        return test::refusalOf([&] { readVorlage(file); });
    }
};

} // namespace

TEST_F(VorlageFile, IsWrittenAndReadByteForByte)
{
    writeVorlage(file, wholeVorlage());
    EXPECT_EQ(content(), WholeFile);
    EXPECT_EQ(readVorlage(file), wholeVorlage());

    Vorlage empty;
    empty.familienpfad = basic::WindowsPath(u"x"_s);
    writeVorlage(file, empty);
    EXPECT_EQ(content(), "\"x\"\r\n\"\"\r\n\"\"\r\n1\r\n1\r\n1\r\n1\r\n1\r\n1\r\n#TRUE#\r\n");
    EXPECT_EQ(readVorlage(file), empty);
}

TEST_F(VorlageFile, IsReadAsOtherProgramsLeaveIt)
{
    Vorlage unixLines = wholeVorlage();
    unixLines.statistik.rtf.replace("\r\n", "\n");
    const std::pair<QByteArray, Vorlage> rows[] = {
        {QByteArray(WholeFile).replace("\r\n", "\n"), unixLines},
        {QByteArray(WholeFile).replace("\r\n5\r\n0", " \t\r\n \t5\t\r\n  0 "), wholeVorlage()},
        {WholeFile + "\r\n \n", wholeVorlage()},
        {WholeFile + "\x1A", wholeVorlage()},
        {WholeFile.chopped(2) + "\x1A\r\n", wholeVorlage()},
        {QByteArray(WholeFile).replace("\r\n5\r\n0\r\n", ",5,0\r\n"), wholeVorlage()},
    };
    for (const auto &[bytes, expected] : rows) {
        put(bytes);
        EXPECT_EQ(refusal(), QString()) << bytes.toStdString();
        EXPECT_EQ(readVorlage(file), expected) << bytes.toStdString();
    }
}

// A cut inside the first ten lines is seen. Behind them the file is a shorter template; one that ends with a number and
// no line end is told, for nothing in it says whether the number is whole.
TEST_F(VorlageFile, ACutFileIsRefusedOrTold)
{
    const qsizetype header = WholeFile.indexOf("#FALSE#") + 7;
    for (qsizetype length = 0; length < WholeFile.size(); ++length) {
        put(WholeFile.left(length));
        const char last = length > 0 ? WholeFile[length - 1] : '\0';
        const bool whole = length >= header && last != '-';
        EXPECT_EQ(refusal().isEmpty(), whole) << length;
        if (whole) {
            EXPECT_EQ(readVorlage(file).lastIsOpen, last >= '0' && last <= '9') << length;
        }
    }
}

// Every letter is kept; what Windows-1252 can hold stays in it.
TEST_F(VorlageFile, HoldsAnyLetters)
{
    Vorlage vorlage = wholeVorlage();
    vorlage.statistik.titel = u"Łódź ☺ 😀 \"Žďár\""_s;
    vorlage.statistik.rtf = "{\\rtf1 B\xE4r \x81}";
    vorlage.familienpfad = vorlage.familienpfad + u"Ж"_s;
    writeVorlage(file, vorlage);
    EXPECT_TRUE(content().startsWith("\xEF\xBB\xBF\"C:") && content().isValidUtf8());
    EXPECT_EQ(readVorlage(file), vorlage);
    vorlage = wholeVorlage();
    put(QByteArray("\xEF\xBB\xBF") + QByteArray(WholeFile).replace("\xE4", "\xC3\xA4").replace("A,", "\xC5\x81,"));
    vorlage.statistik.rtf.replace("A,", "\\u321?,");
    EXPECT_EQ(readVorlage(file), vorlage) << "edited by hand";
    put("\xEF\xBB\xBF" + WholeFile);
    EXPECT_TRUE(refusal().contains("TemplateNotUtf8"));
}

TEST_F(VorlageFile, ReplacesNothingButATemplate)
{
    const std::pair<QByteArray, const char *> rows[] = {
        {"", ""},
        {WholeFile, ""},
        {WholeFile + "damaged", ""},
        {"my list", "NoTemplateToReplace"},
        {"\"a\",\"csv\"\r\n", "NoTemplateToReplace"},
        {QByteArray("\0\1\0\0Standard Jet DB\0\1", 21) + QByteArray(100, '\0'), "TargetIsDatabase"},
    };
    for (const auto &[old, fault] : rows) {
        put(old);
        const QString said = test::refusalOf([&] { writeVorlage(file, wholeVorlage()); });
        EXPECT_EQ(said.isEmpty(), *fault == '\0') << said.toStdString();
        EXPECT_TRUE(said.contains(QLatin1StringView(fault))) << said.toStdString();
        EXPECT_EQ(content(), said.isEmpty() ? WholeFile : old);
    }
}

TEST_F(VorlageFile, RefusalsNameTheLineAndWhatIsWrong)
{
    const struct {
        QByteArray from, to;
        QString line, named;
    } rows[] = {
        {"\"C:\\QV\\B\xE4r.mdb\"", "Standard Jet DB", "line 1:", "NoTemplate"},
        {"\"C:\\QV\\B\xE4r.mdb\"", "\"\"", "line 1:", "NoTemplate"},
        {"\"Der \"\"alte\"\" Stamm\"\r\n", "", "line 5:", "WordIntroduction"}, // everything moves up
        {"\"\"B\"\"", "\"B\"", "line 3:", "TextGoesOn"},
        {"}\"", "}", "line 3:", "TextNotClosed"},
        {"5\r\n", "12\r\n", "line 6:", "WordChartType"},
        {"5\r\n", "\"5\"\r\n", "line 6:", ", 5)"},
        {"5\r\n", "\r\n", "line 6:", ", )"},
        {"5\r\n0", "5\r\n2", "line 7:", "WordLegend"},
        {"#FALSE#", "0", "line 12:", "TemplateTruthExpected (WordByBirth, 0)"},
        {"-3", "-3x", "line 14:", "-3x"},
        {"-3", "3.0", "line 14:", "3.0"},
        {"2147483647", "2147483648", "line 15:", "2147483648"},
        {"2147483647", "99999999999999999999999", "line 15:", "WordCounter"},
        {"2147483647", QByteArray(3, '\0'), "line 15:", "???"},
    };
    for (const auto &row : rows) {
        put(QByteArray(WholeFile).replace(row.from, row.to));
        const QString said = refusal();
        EXPECT_TRUE(said.startsWith(file.text() + ", ") && said.contains(row.line) && said.contains(row.named))
            << row.from.toStdString() << " -> " << row.to.toStdString() << ": " << said.toStdString();
    }
    ASSERT_TRUE(QFile::remove(file));
    EXPECT_TRUE(refusal().contains("TemplateMissing"));
    file = basic::NativePath(folder.path());
    EXPECT_TRUE(refusal().contains("WordIsFolder"));
    file = basic::NativePath(folder.filePath("no/such/folder.kvl"));
    EXPECT_EQ(test::faultOf([&] { writeVorlage(file, wholeVorlage()); }), basic::Fault::TemplateNotSaved);
}

TEST_F(VorlageFile, KeepsEveryDatabasePath)
{
    for (const QString &path : {u"C:\\Müller\\f.mdb"_s, u"\\home\\Łukasz Žďár\\ü.mdb"_s, u"\\Ã¼\\😀.mdb"_s}) {
        Vorlage vorlage = wholeVorlage();
        vorlage.familienpfad = basic::WindowsPath(path);
        writeVorlage(file, vorlage);
        EXPECT_EQ(readVorlage(file).familienpfad.text(), path);
    }
}

TEST_F(VorlageFile, StaysWholeWhereSavingFails)
{
    using namespace test;
    FaultyStorage storage;
    writeVorlage(file, wholeVorlage());
    const QByteArray saved = content(), old = saved + "8\r\n"; // a template, too
    for (const Fault fault : {Fault::Fails, Fault::CutShort}) {
        bool failed = false;
        const auto save = [&] {
            failed = thrownBy([&] { writeVorlage(file, wholeVorlage()); }).has_value();
        };
        const auto check = [&](Call struck) {
            EXPECT_EQ(failed, fault == Fault::Fails && struck != Call::None);
            EXPECT_EQ(content(), failed && struck != Call::SyncFolder ? old : saved);
        };
        atEachCall(
            storage, fault, [&] { put(old); }, save, check);
    }
}
