// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"
#include "support/openwindow.h"
#include <QTabBar>
#include <set>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

/// Everything that the window says, to the eye or to a reader.
std::set<QString> saidBy(const QWidget &window)
{
    std::set<QString> texts{window.windowTitle()};
    for (const QAction *action : window.findChildren<QAction *>())
        texts.insert({action->text(), action->toolTip(), action->iconText()});
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        texts.insert({widget->toolTip(), widget->accessibleName(), widget->windowTitle()});
        EXPECT_FALSE((widget->accessibleName() + widget->windowTitle()).contains('&')) << "a reader would say it";
        for (const char *property : {"text", "title", "placeholderText", "currentText"})
            texts.insert(widget->property(property).toString());
        if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts.insert(tabs->tabText(i));
        }
    }
    return texts;
}

} // namespace

/// The texts of the installation's language database are none of ours.
TEST(Languages, AnyLanguageButGermanIsSpokenInEnglishWhereTheHostLacksOurTexts)
{
    using namespace language;
    for (const char *language : {"Deutsch", "English", "Dansk"}) {
        SCOPED_TRACE(language);
        const bool german = language == std::string("Deutsch");
        OpenWindow open(smallFamily(), [&](OpenWindow &host) {
            host.program.host.inischreiben(host.settings(), u"Ansicht"_s, u"Sprache"_s, QString::fromLatin1(language));
        });
        const std::set<QString> said = saidBy(*open.window);
        std::size_t ours = 0;
        for (const CatalogueText &text : catalogue()) {
            const QString right = QString::fromUtf16(german ? text.deutsch : text.english);
            const QString wrong = QString::fromUtf16(german ? text.english : text.deutsch);
            ours += said.contains(right) ? 1 : 0;
            EXPECT_TRUE(right == wrong || !said.contains(wrong)) << wrong.toStdString();
        }
        EXPECT_GT(ours, 120U);
    }
}
