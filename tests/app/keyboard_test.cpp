// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/sidedatabases.h"
#include "support/openwindow.h"
#include <QApplication>
#include <QLineEdit>

using namespace kalvenor;
using namespace kalvenor::test;
using Counters = std::vector<qint32>;

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

/// The window with the program's own texts in one of their languages.
struct Translated : OpenWindow {
    explicit Translated(const char *language)
        : OpenWindow(smallFamily(), [language](OpenWindow &open) {
              demo::writeLanguageDatabase(open.hostFolder() + "/ADD-IN-LANGUAGE.MDB");
              open.program.host.inischreiben(open.settings(), "Ansicht", "Sprache", language);
          })
    {
    }
};

} // namespace

TEST(Keyboard, MnemonicsOfBothLanguages)
{
    const struct {
        const char *language, *focus;
        int key, shown;
    } rows[] = {{"Deutsch", "Presse", Qt::Key_N, 7},
                {"English", "Presse", Qt::Key_N, 7},
                {"Deutsch", "Presse_Datum_1", Qt::Key_I, 7},
                {"English", "Presse_Datum_1", Qt::Key_T, 7},
                {"Deutsch", "Geschlechtfilter_1", Qt::Key_F, 3},
                {"English", "Geschlechtfilter_1", Qt::Key_W, 3}};
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.language) + " " + row.focus);
        Translated open(row.language);
        press(row.key, Qt::AltModifier);
        EXPECT_EQ(focused(), row.focus);
        const auto &model = open.window->controller().model(PersonList::Unmarked);
        EXPECT_TRUE(QTest::qWaitFor([&] { return model.rowCount() == row.shown; }, 3000));
    }
}

TEST(Keyboard, MarksUnmarksAndTakesBack)
{
    OpenWindow open(smallFamily());
    press(Qt::Key_Home);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(open.marked(), (Counters{1, 2}));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(open.marked(), Counters{});
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(open.marked(), (Counters{1, 2}));

    tabTo("liste_1");
    press(Qt::Key_End);
    press(Qt::Key_Delete);
    EXPECT_EQ(open.marked(), Counters{1});
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
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), "Filterliste_1");
    press(Qt::Key_F, Qt::ControlModifier);
    tabTo("Presse", "x");
    press(Qt::Key_Return);
    EXPECT_TRUE(open.controller().isFiltered(PersonList::Marked));
}

TEST(Keyboard, TabGoesInReadingOrder)
{
    OpenWindow open(smallFamily());
    const QStringList wanted =
        QString("Ladepersonenliste_0 liste_0 RM RMA RM2 RM2A quellenpincl_0 quellenpincl_1 Ladepersonenliste_1 liste_1 "
                "Presse Filtern Filteraufheben Geschlechtfilter_0 Geschlechtfilter_1 Datumfilter_0 Datumfilter_1 "
                "Datumfilter_2 Presse_Datum_0 Presse_Datum_1 Filterliste_0")
            .split(' ');
    QStringList found;
    QWidget *first = &open.control<QWidget>(wanted.front());
    for (QWidget *widget = first; found.isEmpty() || widget != first; widget = widget->nextInFocusChain()) {
        if (wanted.contains(widget->objectName()))
            found << widget->objectName();
    }
    EXPECT_EQ(found.join(' ').toStdString(), wanted.join(' ').toStdString());
}
