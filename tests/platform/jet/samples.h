// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <span>
#include <vector>

// Sample databases that are not part of the source tree; tests with them are skipped where they are missing.
namespace kalvenor::testing {

using namespace Qt::StringLiterals;

inline const QString SampleFolder = u"" KALVENOR_SOURCE_DIR "/../shared/jet-samples"_s;

inline QString sample(const QString &name)
{
    return SampleFolder + u'/' + name;
}

inline QStringList sampleDatabases()
{
    return QDir(SampleFolder).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name);
}

inline std::vector<std::uint8_t> readAll(const QString &file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    const QByteArray bytes = in.readAll();
    return {bytes.begin(), bytes.end()};
}

inline void writeAll(const QString &file, std::span<const std::uint8_t> bytes)
{
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    ASSERT_EQ(out.write(reinterpret_cast<const char *>(bytes.data()), static_cast<qint64>(bytes.size())),
              static_cast<qint64>(bytes.size()));
}

} // namespace kalvenor::testing

#define SKIP_WITHOUT_SAMPLES()                                                                                         \
    if (!QDir(kalvenor::testing::SampleFolder).exists())                                                               \
    GTEST_SKIP() << "no sample databases beside the project"
