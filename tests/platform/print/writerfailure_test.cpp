// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "../../support/columns.h"
#include "../../support/faultystorage.h"
#include "platform/basic/error.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/pdfwriter.h"
#include "platform/print/rtffile.h"
#include "support/errors.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

using Writer = void (*)(const PrintDocument &, const QString &, const basic::Progress &);

const struct {
    const char *name;
    Writer write;
} Writers[] = {
    {"PDF",
     [](const PrintDocument &document, const QString &path, const basic::Progress &progress) {
         writePdf(PageLayout(document), document.title, path, progress);
     }},
    {"RTF", writeRtfFile},
    {"HTML", writeHtmlFile},
};

class WriterFailure : public testing::Test {
protected:
    void SetUp() override
    {
        m_document.add(TableStart{test::columns(u"<5000|>1200")});
        for (int i = 1; i <= 2000; ++i)
            m_document.add(TableRow{{{u"Müller-Łódź, Jürgen Ελένη "_s + QString::number(i)}, {u"77 J."_s}}});
    }

    QString path() const { return m_folder.filePath(u"out"_s); }

    void writeOld() const { test::writeFile(path(), "old"); }

    PrintDocument m_document;
    QTemporaryDir m_folder;
};

TEST_F(WriterFailure, CancellingKeepsTheOldFile)
{
    for (const auto &writer : Writers) {
        writeOld();
        qint64 last = 0;
        const auto stop = [&](qint64 done, qint64 total) {
            last = done;
            return done < total / 3;
        };
        const auto error = kalvenor::test::thrownBy([&] { writer.write(m_document, path(), stop); });
        EXPECT_EQ(error.value().kind(), basic::ErrorKind::Cancelled) << writer.name;
        EXPECT_EQ(error->place().file, path());
        EXPECT_EQ(test::contentOf(path()), "old");
        EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"out"_s});
        EXPECT_LT(last, 1100) << writer.name << " went on";
    }
}

TEST_F(WriterFailure, UnwritablePlaceIsSaid)
{
    QStringList places{m_folder.filePath(u"none/out"_s), m_folder.path(), QString()};
#ifdef Q_OS_UNIX
    places << u"/dev/full"_s << m_folder.filePath(u"pipe"_s); // what is no file must not be replaced by one
    ASSERT_EQ(mkfifo(QFile::encodeName(places.back()).constData(), 0600), 0);
    if (geteuid() != 0) { // nothing is closed to root
        const QString closed = m_folder.filePath(u"closed"_s);
        ASSERT_EQ(mkdir(QFile::encodeName(closed).constData(), 0500), 0);
        places << closed + u"/out"_s;
    }
#endif
    for (const auto &writer : Writers) {
        for (const QString &place : places) {
            const auto error = kalvenor::test::thrownBy([&] { writer.write(m_document, place, {}); });
            ASSERT_TRUE(error) << writer.name << ' ' << qPrintable(place);
            EXPECT_EQ(error->kind(), basic::ErrorKind::WriteFailed) << error->what();
            EXPECT_EQ(error->arguments().value(0), QLatin1String(writer.name)) << error->what();
        }
    }
}

TEST_F(WriterFailure, EachFailingCallKeepsTheOldFile)
{
    using namespace test;
    FaultyStorage storage;
    for (const auto &writer : Writers) {
        SCOPED_TRACE(writer.name);
        writer.write(m_document, path(), {});
        const qint64 whole = QFileInfo(path()).size();
        for (const Fault fault : {Fault::Fails, Fault::CutShort}) {
            bool failed = false;
            const auto write = [&] {
                failed = kalvenor::test::kindOf([&] { writer.write(m_document, path(), {}); }) ==
                         basic::ErrorKind::WriteFailed;
            };
            const auto check = [&](Call struck) {
                EXPECT_EQ(failed, fault == Fault::Fails && struck != Call::None);
                EXPECT_EQ(QFileInfo(path()).size(), failed && struck != Call::SyncFolder ? 3 : whole);
                EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"out"_s});
            };
            atEachCall(
                storage, fault, [&] { writeOld(); }, write, check);
        }
    }
}

} // namespace
} // namespace kalvenor::print
