// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/pictures/bildkonvertieren.h"

#include "platform/basic/error.h"
#include "support/errors.h"
#include "support/fakedesktop.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using report::PictureControl;

namespace {

const QString Component = u"Pictarex.Compendium"_s;

/// What the component was asked for; it complains where the output's name says so.
struct Complaining : desktop::ImageComponent {
    QString convertEx(const QString &, const QString &output, int quality, int, int, int) override
    {
        lastQuality = quality;
        return output.contains(u"bad") ? u" no space left"_s : QString();
    }
    static inline int lastQuality = -1;
};

/// A host folder with a converter; the components are as at the program's start.
struct BildumwandlungTest : testing::Test {
    BildumwandlungTest()
    {
        control.Image.fill(Qt::darkGreen);
        host.Hostverzeichnis = basic::windowsPath(folder.path());
        host.Sprache = u"Deutsch"_s;
        desktop::registerImageComponent(Component, desktop::createJpegComponent);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
    basic::WindowsPath path(const QString &name) const { return basic::windowsPath(folder.filePath(name)); }
    void setting(const char *section, const char *key, const char *value) const
    {
        ASSERT_TRUE(host.inischreiben(host.hostSettingsFile(), section, key, value));
    }
    void installLibrary(const char *name) const
    {
        ASSERT_TRUE(QFile::copy(u"" KALVENOR_BINARY_DIR "/tests/report/"_s + name, folder.filePath(u"Pictarex.dll"_s)));
    }
    /// Converts into a file of that name in the folder; the name written.
    QString convert(const QString &name)
    {
        basic::WindowsPath file = path(name);
        conversion.bildkonvertieren(control, file, type);
        return file.text().mid(file.text().lastIndexOf(u'\\') + 1);
    }

    QTemporaryDir folder;
    test::FakeDesktop desktop;
    host::Host host{basic::windowsPath(folder.filePath(u"Kalvenor"_s)), desktop};
    dao::Engine engine;
    language::Sprachmodul texts{host, engine};
    report::Bildumwandlung conversion{host, texts};
    PictureControl control{.Image = QImage(120, 60, QImage::Format_RGB32)};
    QString type;
};

TEST_F(BildumwandlungTest, NamesDecideWhatIsWritten)
{
    const struct {
        QString wanted, written, type;
        bool there;
    } rows[] = {
        {"Liste.jpg", "Liste.JPG", "JPG", true}, {"bild.bMp", "bild.JPG", "JPG", true},
        {"a.b.jpg", "a.b.JPG", "JPG", true},     {"Ähre 1.JPG", "Ähre 1.JPG", "JPG", true},
        {"bild.png", "bild.PNG", "PNG", false}, // the component is asked for JPG only
    };
    for (const auto &row : rows) {
        EXPECT_EQ(convert(row.wanted), row.written);
        EXPECT_EQ(type, row.type);
        EXPECT_EQ(files(), row.there ? QStringList(row.written) : QStringList());
        if (row.there) {
            EXPECT_EQ(QImage(folder.filePath(row.written), "jpeg").size(), control.Image.size());
        }
        QFile::remove(folder.filePath(row.written));
    }
    basic::WindowsPath none;
    conversion.bildkonvertieren(control, none, type);
    EXPECT_TRUE(none.isEmpty() && files().isEmpty() && desktop.messages.empty());
}

TEST_F(BildumwandlungTest, ReplacesOldPicturesWhateverTheirCase)
{
    for (const char *old : {"chart.Bmp", "CHART.jpg"}) {
        test::writeFile(folder.filePath(QLatin1String(old)));
    }
    EXPECT_EQ(convert("chart.jpg"), "chart.JPG");
    EXPECT_EQ(files(), QStringList("chart.JPG"));
    EXPECT_FALSE(QImage(folder.filePath("chart.JPG")).isNull());
}

TEST_F(BildumwandlungTest, QualityIsTheHosts)
{
    desktop::registerImageComponent(
        Component, [] { return std::unique_ptr<desktop::ImageComponent>(std::make_unique<Complaining>()); });
    EXPECT_EQ(convert("a.jpg"), "a.JPG");
    EXPECT_EQ(Complaining::lastQuality, 70);
    const std::pair<const char *, int> rows[] = {{"85.5 %", 86}, {"none", 0}, {"-4", 0}, {"1e300", 100}};
    for (const auto &[text, quality] : rows) {
        setting("Grafik", "JPG-Faktor", text);
        convert("a.jpg");
        EXPECT_EQ(Complaining::lastQuality, quality) << text;
    }
    EXPECT_TRUE(desktop.messages.empty());
    convert("bad.jpg");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text, "Fehler: no space left");
    EXPECT_EQ(files(), QStringList("programm.ini")); // no BMP stays behind
}

TEST_F(BildumwandlungTest, AMissingComponentIsRegisteredOrThePictureStaysBmp)
{
    const struct {
        const char *library;
        bool refuses;
        const char *written;
    } rows[] = {{nullptr, false, "a.BMP"},
                {"emptycomponent.dll", false, "a.BMP"},
                {"testcomponent.dll", true, "a.BMP"},
                {"testcomponent.dll", false, "a.JPG"}};
    for (const auto &row : rows) {
        desktop::unregisterImageComponent(Component);
        QFile::remove(folder.filePath("Pictarex.dll"));
        if (row.library != nullptr)
            installLibrary(row.library);
        row.refuses ? qputenv("KALVENOR_TEST_REFUSE", "1") : qunsetenv("KALVENOR_TEST_REFUSE");
        desktop.messages.clear();
        EXPECT_EQ(convert("a.jpg"), row.written);
        EXPECT_EQ(QImage(folder.filePath(row.written)).size(), control.Image.size());
        EXPECT_EQ(files().contains("a.bmp"), false);
        const bool told = QLatin1String(row.written) == u"a.BMP";
        ASSERT_EQ(desktop.messages.size(), told ? 1U : 0U);
        if (told) {
            EXPECT_EQ(desktop.messages[0].style, desktop::MessageCritical);
        }
    }
    const basic::WindowsPath library = path("Pictarex.dll");
    EXPECT_EQ(report::dllregistrieren(host, library, false), -1);
    EXPECT_EQ(desktop::createImageComponent(Component), nullptr);
    EXPECT_EQ(report::dllregistrieren(host, library, false), 0); // there is none any more
    EXPECT_EQ(report::dllregistrieren(host, path("programm.ini"), true), 0);
}

TEST_F(BildumwandlungTest, SaysWhatCannotBeWritten)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("locked.bmp")); // a folder in the picture's place
    const std::pair<const char *, basic::ErrorKind> rows[] = {{"locked.jpg", basic::ErrorKind::WriteFailed},
                                                              {"missing\\a.jpg", basic::ErrorKind::WriteFailed},
                                                              {"jpg", basic::ErrorKind::InvalidProcedureCall}};
    for (const auto &[name, kind] : rows) {
        const QString file = QLatin1String(name);
        EXPECT_EQ(test::kindOf([&] { convert(file); }), kind) << name;
    }
    ASSERT_TRUE(QDir(folder.path()).mkdir("taken.JPG"));
    convert("taken.jpg");
    EXPECT_EQ(desktop.messages.size(), 1U);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(BildumwandlungTest, PicturesFitTheSpaceAndKeepTheirShape)
{
    const struct {
        const char *least;
        qint16 width, height, raised;
        double printWidth, printHeight;
    } rows[] = {
        {nullptr, 9000, 1500, 2000, 4000, 2000}, {nullptr, 9000, 3000, 3000, 6000, 3000},
        {nullptr, 3000, 8000, 8000, 3000, 1500}, {"2500.5", 9000, 100, 2500, 5000, 2500},
        {"100", 9000, 90, 100, 200, 100},        {"1e300", 9000, 1500, 2000, 4000, 2000},
        {"none", 9000, 0, 2000, 4000, 2000},
    };
    for (const auto &row : rows) {
        if (row.least != nullptr)
            setting("Ansicht", "Bildminhoehe", row.least);
        PictureControl print;
        qint16 height = row.height;
        control.AutoRedraw = true;
        report::bildgroesse(host, control, print, row.width, height);
        EXPECT_EQ(height, row.raised);
        EXPECT_NEAR(print.Width, row.printWidth, 0.01);
        EXPECT_NEAR(print.Height, row.printHeight, 0.01);
        EXPECT_FALSE(control.AutoRedraw);
        EXPECT_EQ(print.Image, control.Image);
    }
    qint16 height = 100;
    PictureControl print;
    EXPECT_THROW(report::bildgroesse(host, control, print, 0, height), basic::Error);
}

} // namespace
