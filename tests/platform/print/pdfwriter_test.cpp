// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pdfwriter.h"

#include "platform/basic/error.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#endif

namespace kalvenor {
namespace {

class PdfWriter : public testing::Test {
protected:
    void SetUp() override
    {
        m_document.title = u"Altersliste der Familie Müller"_qs;
        m_document.footer.text = u"|Seite %d|"_qs;
        m_document.add(TableStart{columnsFromFormat(u"<5000|>1200")});
        for (int i = 1; i <= 120; ++i)
            m_document.add(TableRow{{{u"Müller-Łódź, Jürgen Ελένη "_qs + QString::number(i)}, {u"77 J."_qs}}});
    }

    QString path() const { return m_folder.filePath(u"out.pdf"_qs); }

    void writeOld() const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    }

    /// The kind of the error of writing, after which the old file must stand there alone.
    ErrorKind failure(const Progress &progress = {}) const
    {
        std::optional<ErrorKind> kind;
        try {
            writePdf(PageLayout(m_document), m_document.title, path(), progress);
        } catch (const Error &error) {
            kind = error.kind();
            EXPECT_EQ(error.place(), path());
        }
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "old");
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"out.pdf"_qs});
        return kind.value();
    }

    /// What a tool of the poppler package prints; nothing where it is not installed.
    static std::optional<QString> output(const QString &tool, const QStringList &arguments)
    {
        if (QStandardPaths::findExecutable(tool).isEmpty())
            return {};
        QProcess process;
        process.start(tool, arguments);
        EXPECT_TRUE(process.waitForFinished()) << qPrintable(tool);
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    PrintDocument m_document;
    QTemporaryDir m_folder;
};

TEST_F(PdfWriter, OthersReadItsPagesTitleTextAndFonts)
{
    for (const bool landscape : {false, true}) {
        m_document.page.landscape = landscape;
        writeOld();
        const PageLayout layout(m_document);
        writePdf(layout, m_document.title, path());
        const auto info = output(u"pdfinfo"_qs, {path()});
        const auto text = output(u"pdftotext"_qs, {u"-layout"_qs, path(), u"-"_qs});
        const auto fonts = output(u"pdffonts"_qs, {path()});
        if (!info || !text || !fonts)
            GTEST_SKIP() << "poppler-utils is not installed";
        EXPECT_TRUE(info->contains(m_document.title)) << qPrintable(*info);
        EXPECT_TRUE(info->contains(landscape ? u"842 x 595 pts (A4)" : u"595 x 842 pts (A4)")) << qPrintable(*info);
        EXPECT_FALSE(info->contains(u"Author:"));
        EXPECT_EQ(text->count(u'\f'), static_cast<qsizetype>(layout.pages().size()));
        EXPECT_GT(layout.pages().size(), 1u);
        EXPECT_EQ(text->count(u"Müller-Łódź, Jürgen Ελένη "), 120) << qPrintable(*text);
        EXPECT_EQ(text->count(u"77 J."), 120);
        EXPECT_TRUE(text->contains(u"Seite 2"));
        // Columns behind the encoding: embedded, subset, with a map to Unicode.
        static const QRegularExpression embedded(u"(?m)Identity-H +yes +(yes|no) +yes "_qs);
        EXPECT_EQ(fonts->count(embedded), fonts->count(u"Identity-H")) << qPrintable(*fonts);
    }
}

TEST_F(PdfWriter, CancellingKeepsTheOldFile)
{
    writeOld();
    EXPECT_EQ(failure([](qint64 done, qint64) { return done < 2; }), ErrorKind::Cancelled);
}

TEST_F(PdfWriter, UnwritablePlaceIsSaid)
{
    QStringList places{m_folder.filePath(u"none/out.pdf"_qs), m_folder.path(), QString()};
#ifdef Q_OS_UNIX
    places << m_folder.filePath(u"pipe"_qs); // what is no file must not be replaced by one
    ASSERT_EQ(mkfifo(QFile::encodeName(places.back()).constData(), 0600), 0);
#endif
    for (const QString &place : places) {
        try {
            writePdf(PageLayout(m_document), {}, place);
            ADD_FAILURE() << qPrintable(place);
        } catch (const Error &error) {
            EXPECT_EQ(error.kind(), ErrorKind::WriteFailed) << error.what();
        }
    }
}

#ifdef Q_OS_UNIX
TEST_F(PdfWriter, FullDiskKeepsTheOldFile)
{
    writePdf(PageLayout(m_document), {}, path());
    const auto whole = static_cast<rlim_t>(QFileInfo(path()).size());
    writeOld();
    // A limit on file sizes stands for the full disk: writing beyond it fails half way.
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    for (const rlim_t bytes : {rlim_t(100), whole / 2, whole - 10}) {
        const rlimit few{bytes, old.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &few), 0);
        EXPECT_EQ(failure(), ErrorKind::WriteFailed) << bytes;
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
    }
    std::signal(SIGXFSZ, handler);
}
#endif

} // namespace
} // namespace kalvenor
