// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What mdb-export of mdbtools reads from a database equals what we read.
#include "demo/host/demohost.h"
#include "platform/jet/reader/database.h"
#include <cmath>
#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUuid>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using jet::ColumnType;

namespace {

using Rows = std::vector<QStringList>;
const QString NullText = u"\\N"_s;

QByteArray mdbExport(const QString &file, const QString &table)
{
    QProcess process;
    process.start("mdb-export",
                  {"-0", NullText, "-b", "hex", "-D", "%Y-%m-%d %H:%M:%S", "-T", "%Y-%m-%d %H:%M:%S", file, table});
    process.waitForFinished(60'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// Comma-separated values with doubled quotes; line ends inside quotes belong to the value. A quoted text that reads
/// like the null word keeps one quote before it, to stay apart.
Rows parseCsv(const QString &csv)
{
    Rows rows;
    QStringList row;
    qsizetype at = 0;
    while (at < csv.size()) {
        QString field;
        if (csv[at] == u'"') {
            for (++at; at < csv.size(); ++at) {
                if (csv[at] != u'"')
                    field += csv[at];
                else if (at + 1 < csv.size() && csv[at + 1] == u'"')
                    field += csv[at++];
                else
                    break;
            }
            ++at;
        } else {
            while (at < csv.size() && csv[at] != u',' && csv[at] != u'\n')
                field += csv[at++];
        }
        row << field;
        if (at >= csv.size() || csv[at] == u'\n') {
            rows.push_back(row);
            row.clear();
        }
        ++at;
    }
    return rows;
}

QString serialText(double serial)
{
    const qint64 seconds = std::llround(serial * 86400);
    return QDate(1899, 12, 30).startOfDay(Qt::UTC).addSecs(seconds).toString("yyyy-MM-dd HH:mm:ss");
}

/// True where the exported field shows our value.
bool isSame(const QString &theirs, const jet::Table &table, quint32 row, int column)
{
    const jet::Column &definition = table.columns()[static_cast<std::size_t>(column)];
    if (definition.type == ColumnType::Boolean)
        return theirs == (table.boolean(row, column) ? "1" : "0");
    if (table.isNull(row, column))
        return theirs == NullText;
    switch (definition.type) {
    case ColumnType::Text:
    case ColumnType::Memo:
        return theirs == table.text(row, column);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return theirs.compare(QLatin1String(table.bytes(row, column).toHex()), Qt::CaseInsensitive) == 0;
    case ColumnType::DateTime:
        // mdb-export shows no date before day 0.
        return *table.number(row, column) < 0 || theirs == serialText(*table.number(row, column));
    case ColumnType::Guid:
        return theirs.contains(table.value(row, column).toUuid().toString(QUuid::WithoutBraces), Qt::CaseInsensitive);
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
        return theirs == QString::number(*table.integer(row, column));
    default:
        return std::abs(theirs.toDouble() - *table.number(row, column)) <= 1e-6 * std::abs(*table.number(row, column));
    }
}

/// Compares one table row by row; mdb-export writes columns in their display order.
void compareTable(jet::Database &database, const QString &name)
{
    const auto table = database.table(name);
    const Rows theirs = parseCsv(QString::fromUtf8(mdbExport(database.file(), name)));
    ASSERT_FALSE(theirs.empty());
    ASSERT_EQ(theirs.front().size(), static_cast<qsizetype>(table->columns().size()));
    ASSERT_EQ(theirs.size() - 1, table->rowCount());
    int differences = 0;
    for (qsizetype field = 0; field < theirs.front().size(); ++field) {
        const int column = table->columnOf(theirs.front()[field]);
        ASSERT_GE(column, 0) << theirs.front()[field].toStdString();
        for (quint32 row = 0; row < table->rowCount() && differences < 5; ++row) {
            const QString &text = theirs[row + 1].value(field);
            if (!isSame(text, *table, row, column)) {
                ++differences;
                ADD_FAILURE() << name.toStdString() << " row " << row << ", column "
                              << theirs.front()[field].toStdString() << ": mdb-export has \"" << text.toStdString()
                              << "\", we have \"" << table->value(row, column).toString().toStdString() << '"';
            }
        }
    }
}

void compareFile(const QString &file, const QStringList &except = {})
{
    const auto database = jet::Database::open(file);
    for (const auto &entry : database->entries()) {
        if (entry.system || except.contains(entry.name))
            continue;
        SCOPED_TRACE((QFileInfo(file).fileName() + ", table " + entry.name).toStdString());
        compareTable(*database, entry.name);
    }
}

class Mdbtools : public testing::Test {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable("mdb-export").isEmpty())
            GTEST_SKIP() << "mdb-export is missing (apt-get install mdbtools)";
    }
};

} // namespace

TEST_F(Mdbtools, ReadsTheDemonstrationHostAsWeDo)
{
    QTemporaryDir folder;
    const demo::DemoHost host = demo::makeDemoHost({.folder = folder.path(), .persons = 1500, .seed = 3});
    QDirIterator files(host.hostFolder, {"*.mdb", "*.MDB"}, QDir::Files, QDirIterator::Subdirectories);
    int compared = 0;
    while (files.hasNext()) {
        compareFile(files.next());
        ++compared;
    }
    EXPECT_EQ(compared, 7) << "family, four side databases, two language databases";
}

TEST_F(Mdbtools, ReadsFilesOfOtherMakersAsWeDo)
{
    const QDir samples(KALVENOR_SOURCE_DIR "/../shared/jet-samples");
    if (!samples.exists())
        GTEST_SKIP() << "no sample databases beside the project";
    for (const QString &file : samples.entryList({"*.mdb"}, QDir::Files)) {
        // mdb-export lists a moved record at its new place, we at its first one; the reader's own tests compare these.
        if (!file.startsWith("overflow"))
            compareFile(samples.filePath(file));
    }
}
