// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/files.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <QDir>
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
    const QByteArray bytes = test::contentOf(file);
    return {bytes.begin(), bytes.end()};
}

inline void writeAll(const QString &file, std::span<const std::uint8_t> bytes)
{
    test::writeFile(file, {reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())});
}

} // namespace kalvenor::testing

#define SKIP_WITHOUT_SAMPLES()                                                                                         \
    if (!QDir(kalvenor::testing::SampleFolder).exists())                                                               \
    GTEST_SKIP() << "no sample databases beside the project"
