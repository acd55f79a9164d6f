// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/host/demohost.h"
#include "platform/jet/reader/database.h"
#include <gtest/gtest.h>
#include <memory>
#include <QTemporaryDir>

namespace kalvenor::demo::test {

/// One demonstration of 3,000 persons for all cases that only look at it.
class DemoTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<QTemporaryDir>();
        s_host = makeDemoHost({.folder = s_folder->path(), .persons = 3000, .seed = 7});
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    static const DemoHost &host() { return s_host; }
    static std::shared_ptr<jet::Database> open(const QString &name)
    {
        return jet::Database::open(host().hostFolder + u'/' + name);
    }
    static std::shared_ptr<jet::Database> family() { return jet::Database::open(host().familyDatabase); }

private:
    static inline std::unique_ptr<QTemporaryDir> s_folder;
    static inline DemoHost s_host;
};

} // namespace kalvenor::demo::test
