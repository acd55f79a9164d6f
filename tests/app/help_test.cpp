// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/helpwindow.h"

#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

using namespace kalvenor;

namespace {

struct Manual : testing::TestWithParam<const char *>, test::StartedProgram {
    Manual() { program.host.Sprache = QString::fromLatin1(GetParam()); }
    void SetUp() override
    {
        window = std::make_unique<app::HelpWindow>(program.language, program.host);
        window->showTopic(u"Hilfe"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template <typename Control>
    Control &control(const char *name)
    {
        return *window->findChild<Control *>(QLatin1String(name));
    }
    std::unique_ptr<app::HelpWindow> window;
};

} // namespace

TEST_P(Manual, HoldsItsPicturesAndEveryLinkLeadsToASection)
{
    auto &text = control<QTextBrowser>("Hilfetext");
    auto &contents = control<QListWidget>("Inhalt");
    EXPECT_EQ(contents.count(), 12);
    int links = 0, pictures = 0;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isImageFormat()) {
                ++pictures;
                const QUrl name(format.toImageFormat().name());
                EXPECT_FALSE(text.document()->resource(QTextDocument::ImageResource, name).isNull());
            }
            const QString link = format.anchorHref();
            if (link.isEmpty())
                continue;
            ++links;
            window->showTopic(u"Hilfe"_s);
            window->showTopic(link.mid(1));
            EXPECT_GT(contents.currentRow(), 0) << link.toStdString();
        }
    }
    EXPECT_EQ(links, 5);
    EXPECT_EQ(pictures, 2);
    for (const int row : {11, 4}) {
        contents.setCurrentRow(row);
        EXPECT_GT(text.verticalScrollBar()->value(), 0);
        EXPECT_EQ(contents.currentRow(), row);
    }
    window->findChild<QAction *>("Zurueck")->trigger();
    EXPECT_NE(contents.currentRow(), 4);
    window->showTopic(u"gibt es nicht"_s);
    EXPECT_EQ(contents.currentRow(), 0);
}

TEST_P(Manual, FindsEveryPlaceAndComesRoundAgain)
{
    auto &search = control<QLineEdit>("Suche");
    auto &found = control<QLabel>("Fundstelle");
    auto &text = control<QTextBrowser>("Hilfetext");
    QTest::keyClicks(&search, "KALVENOR.INI");
    EXPECT_TRUE(found.text().startsWith("1 ")) << found.text().toStdString();
    EXPECT_GT(text.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(text.textCursor().block().text().contains("Kalvenor.ini"));
    search.setText("PDF");
    const auto count = text.extraSelections().size();
    EXPECT_GT(count, 1);
    const QString first = found.text();
    for (qsizetype i = 0; i < count; ++i)
        QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(found.text(), first);
    window->findChild<QAction *>("Vorige")->trigger();
    EXPECT_NE(found.text(), first);
    search.setText("Xylophon");
    EXPECT_TRUE(text.extraSelections().isEmpty());
    EXPECT_FALSE(found.text().isEmpty());
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_TRUE(search.text().isEmpty() && found.text().isEmpty());
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Languages, Manual, testing::Values("Deutsch", "English"));
