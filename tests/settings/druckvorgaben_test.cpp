// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/vorgabendatei.h"

#include "platform/basic/error.h"
#include "support/fakedesktop.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace kalvenor;
using namespace kalvenor::settings;

namespace {

/// The print settings over a file of their own.
struct Settings {
    explicit Settings(const QByteArray &content = {})
    {
        if (!content.isNull())
            write(content);
    }
    void write(const QByteArray &content) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray bytes() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void load() { initladen(host, vorgaben, page); }
    bool save() const { return initspeichern(host, vorgaben, page); }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("Kalvenor.ini"));
    test::FakeDesktop desktop;
    host::Host host{windowsPath(folder.path()), desktop};
    Druckvorgaben vorgaben;
    PageSetup page;
};

const QByteArray seeded = "[Spalten]\r\n1=400\r\n2=1000\r\n4=3000\r\n[Grafik]\r\nFontfaktor=3\r\n";

TEST(Druckvorgaben, FirstRunSeedsAndNothingElse)
{
    Settings settings;
    settings.load();
    EXPECT_EQ(settings.bytes(), seeded);
    EXPECT_EQ(settings.vorgaben, defaultVorgaben());
}

} // namespace
