// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/openwindow.h"
#include <map>
#include <QApplication>
#include <QMenuBar>
#include <QRadioButton>
#include <QRegularExpression>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

void press(int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

std::string focused()
{
    const QWidget *widget = QApplication::focusWidget();
    return widget == nullptr ? "nothing" : widget->objectName().toStdString();
}

/// Presses Tab until the named control has the focus, then types.
void tabTo(const std::string &name, const QString &typed = {})
{
    for (int i = 0; i < 40 && focused() != name; ++i)
        press(Qt::Key_Tab);
    ASSERT_EQ(focused(), name);
    QTest::keyClicks(QApplication::focusWidget(), typed);
}

} // namespace

TEST(Keyboard, MnemonicsOfBothLanguages)
{
    const struct {
        const char *language, *focus;
        int key, shown;
    } rows[] = {{"Deutsch", "Presse_Datum_1", Qt::Key_I, 7},
                {"English", "Presse_Datum_1", Qt::Key_T, 7},
                {"Deutsch", "Geschlechtfilter_1", Qt::Key_F, 3},
                {"English", "Geschlechtfilter_1", Qt::Key_W, 3}};
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.language) + " " + row.focus);
        TranslatedWindow open(row.language);
        press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier); // unfolds the filter
        press(row.key, Qt::AltModifier);
        EXPECT_EQ(focused(), row.focus);
        const auto &model = open.window->controller().model(PersonList::Unmarked);
        EXPECT_TRUE(QTest::qWaitFor([&] { return model.rowCount() == row.shown; }, 3000));
    }
}

TEST(Keyboard, SpacePressesButtonsAndBoxes)
{
    OpenWindow open(smallFamily());
    press(Qt::Key_Space); // the person under the frame
    tabTo("quellenpincl_0", " ");
    tabTo("RM", " ");
    EXPECT_EQ(open.marked(), (Counters{1, 3, 4, 5, 6})) << "Hans with his descendants";
    tabTo("liste_1");
    press(Qt::Key_End);
    tabTo("RM2", " ");
    EXPECT_EQ(open.marked(), (Counters{1, 3, 4, 5}));
    tabTo("RM2A", " ");
    EXPECT_EQ(open.marked(), Counters{});
}

TEST(Keyboard, Filters)
{
    OpenWindow open(smallFamily());
    const auto shows = [&open](const Counters &expected) {
        return QTest::qWaitFor([&] { return open.shown(PersonList::Unmarked) == expected; }, 5000);
    };
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_EQ(focused(), "Presse");
    tabTo("Mehrfilter", " ");
    tabTo("Presse", "a");
    press(Qt::Key_Return);
    EXPECT_EQ(open.shown(PersonList::Unmarked), (Counters{1, 2, 3, 4, 6}));
    EXPECT_EQ(open.control<QLineEdit>("Presse").text(), "*a*");
    tabTo("Geschlechtfilter_1", " ");
    EXPECT_TRUE(shows({2, 4, 6}));
    tabTo("Datumfilter_1", " ");
    tabTo("Presse_Datum_1", "31121900"); // day 366
    press(Qt::Key_Return);
    EXPECT_EQ(open.shown(PersonList::Unmarked), Counters{4});
    tabTo("Presse_Datum_0", "01011901"); // day 367
    tabTo("Presse_Datum_1", "31121999");
    EXPECT_TRUE(shows({2})) << "a date is typed over when Tab enters it";
    tabTo("Filteraufheben", " ");
    EXPECT_EQ(open.shown(PersonList::Unmarked).size(), 7U);
    tabTo("Filterliste_0");
    const auto &lists = open.window->findChildren<QRadioButton *>(QRegularExpression(u"^Filterliste_"_s));
    press(lists[0]->y() == lists[1]->y() ? Qt::Key_Right : Qt::Key_Down);
    EXPECT_EQ(focused(), "Filterliste_1");
    press(Qt::Key_F, Qt::ControlModifier);
    tabTo("Presse", "x");
    press(Qt::Key_Return);
    EXPECT_TRUE(open.controller().isFiltered(PersonList::Marked));
}

TEST(Keyboard, TabPassesEachControlOnceBothWays)
{
    for (const bool unfolded : {false, true}) {
        OpenWindow open(smallFamily());
        open.controller().moveAll(PersonList::Unmarked);
        open.controller().move(PersonList::Marked, {1, 2}, {});
        open.window->selectionPanel().filterPanel().setUnfolded(unfolded);
        for (int tab = 0; tab < 3; ++tab) {
            SCOPED_TRACE(tab);
            open.window->statisticsPanel().tabs().setCurrentIndex(tab);
            open.view(PersonList::Unmarked).selectAll();
            open.view(PersonList::Marked).selectAll();
            open.control<QWidget>("Presse").setFocus();
            const auto walk = [](Qt::Key key, Qt::KeyboardModifiers modifiers) {
                QList<QWidget *> passed;
                for (int i = 0; i < 100 && !passed.contains(QApplication::focusWidget()); ++i) {
                    passed << QApplication::focusWidget();
                    press(key, modifiers);
                }
                return passed;
            };
            QList<QWidget *> there = walk(Qt::Key_Tab, {});
            EXPECT_EQ(focused(), "Presse") << "the round ends where it began";
            QList<QWidget *> back = walk(Qt::Key_Backtab, Qt::ShiftModifier);
            EXPECT_EQ(focused(), "Presse");
            std::reverse(back.begin() + 1, back.end());
            QStringList names;
            for (const QWidget *widget : there)
                names << widget->objectName();
            EXPECT_TRUE(there == back) << names.join(' ').toStdString();

            const QString fields = unfolded ? "Geschlechtfilter_0 Geschlechtfilter_1 Datumfilter_0 Datumfilter_1 "
                                              "Datumfilter_2 Presse_Datum_0 Presse_Datum_1 Filterliste_0 Filtern "
                                              "Filteraufheben "
                                            : "";
            const QString wanted = "Presse Mehrfilter " + fields +
                                   "Ladepersonenliste_0 liste_0 RM RMA RM2 RM2A Ladepersonenliste_1 liste_1 "
                                   "quellenpincl_0 quellenpincl_1 Statistiktitel";
            EXPECT_TRUE(names.join(' ').startsWith(wanted)) << names.join(' ').toStdString();

            // Nobody who can be reached by Tab alone is left out.
            for (QWidget *widget : open.window->findChildren<QWidget *>()) {
                const bool reachable = widget->isVisible() && widget->isEnabled() &&
                                       (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
                const auto *radio = qobject_cast<QRadioButton *>(widget);
                if (reachable && (radio == nullptr || radio->isChecked())) {
                    EXPECT_TRUE(there.contains(widget))
                        << widget->objectName().toStdString() << ' ' << widget->metaObject()->className();
                }
            }
        }
    }
}

TEST(Keyboard, AccessKeysAreUnique)
{
    static const QRegularExpression key("&([^& ])");
    const auto expectUnique = [](const QStringList &captions, bool allHave) {
        std::map<QString, QString> taken;
        for (const QString &caption : captions) {
            const QString found = key.match(caption).captured(1).toLower();
            EXPECT_TRUE(found.isEmpty() ? !allHave : taken.insert({found, caption}).second)
                << caption.toStdString() << " and " << taken[found].toStdString();
        }
    };
    for (const char *language : {"Deutsch", "English"}) {
        SCOPED_TRACE(language);
        TranslatedWindow open(language);
        open.window->selectionPanel().filterPanel().setUnfolded(true);
        QStringList bar;
        for (QAction *action : open.window->menuBar()->actions()) {
            bar << action->text();
            QStringList entries;
            for (const QAction *entry : action->menu()->actions()) {
                if (!entry->isSeparator())
                    entries << entry->text();
            }
            expectUnique(entries, true);
        }
        for (int tab = 0; tab < 3; ++tab) {
            open.window->statisticsPanel().tabs().setCurrentIndex(tab);
            QStringList captions = bar;
            for (const QAbstractButton *button : open.window->findChildren<QAbstractButton *>()) {
                const auto *tool = qobject_cast<const QToolButton *>(button);
                if (button->isVisible() && (tool == nullptr || tool->defaultAction() == nullptr))
                    captions << button->text();
            }
            for (const QLabel *label : open.window->findChildren<QLabel *>()) {
                if (label->isVisible() && label->buddy() != nullptr)
                    captions << label->text();
            }
            expectUnique(captions, false);
        }
    }
}
