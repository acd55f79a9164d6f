// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/auswahl.h"
#include "demo/host/sidedatabases.h"
#include "selection/filter/filterpanel.h"
#include "selection/panel/personlistpanel.h"
#include "selection/panel/selectionpanel.h"
#include "statistics/panel/statisticspanel.h"
#include "support/startedprogram.h"
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <QAction>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <stdexcept>

namespace kalvenor::test {

using namespace Qt::StringLiterals;

using selection::PersonList;
using Counters = std::vector<qint32>;

/// The main window over a host installation of its own.
struct OpenWindow : Installation {
    explicit OpenWindow(const std::vector<TestPerson> &persons, const std::function<void(OpenWindow &)> &prepare = {})
        : Installation(persons)
    {
        if (prepare)
            prepare(*this);
        show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get())); // a real desktop takes its time
    }

    /// Starts the program with a new window.
    void show()
    {
        program.Main([this] {
            window = std::make_unique<app::Auswahl>(program);
            window->show();
            return window.get();
        });
    }

    /// The named control of the window.
    template <typename Control>
    Control &control(const QString &name)
    {
        auto *found = window->findChild<Control *>(name);
        if (found == nullptr)
            throw std::runtime_error("no control named " + name.toStdString());
        return *found;
    }
    template <typename Control>
    void click(const QString &name)
    {
        control<Control>(name).click();
    }
    void trigger(const QString &action) { control<QAction>(action).trigger(); }
    /// Types into the named field, from its beginning on.
    void type(const QString &name, const QString &text)
    {
        auto &field = control<QLineEdit>(name);
        field.setFocus();
        field.setCursorPosition(0);
        QTest::keyClicks(&field, text);
    }
    selection::PersonListView &view(PersonList list) { return window->selectionPanel().listPanel(list).view(); }
    selection::SelectionController &controller() { return window->controller(); }

    /// Counters of the persons that the list shows.
    Counters shown(PersonList list)
    {
        Counters counters;
        const auto &model = controller().model(list);
        for (int row = 0; row < model.rowCount(); ++row)
            counters.push_back(model.counterAt(row));
        return counters;
    }
    Counters inFile(const QString &query) const { return countersIn(family(), query); }
    Counters marked() { return inFile(selection::plainListQuery(PersonList::Marked)); }

    void select(PersonList list, std::initializer_list<qint32> counters)
    {
        QItemSelection selection;
        const auto &model = controller().model(list);
        for (int row = 0; row < model.rowCount(); ++row) {
            if (std::find(counters.begin(), counters.end(), model.counterAt(row)) != counters.end())
                selection.select(model.index(row), model.index(row));
        }
        view(list).setFocus();
        view(list).selectionModel()->setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
        view(list).selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    QString statusText() { return control<QLabel>("Meldungszeile").text(); }

    FakeDesktop desktop;
    app::Program program{programFolder(), desktop};
    std::unique_ptr<app::Auswahl> window;
};

inline std::vector<TestPerson> smallFamily();

/// "Person 0001" and so on; their order is that of their counters.
inline std::vector<TestPerson> manyPersons(qint32 count)
{
    std::vector<TestPerson> persons;
    for (qint32 i = 1; i <= count; ++i)
        persons.push_back({.counter = i, .listname = u"Person %1"_s.arg(i, 4, 10, QChar(u'0'))});
    return persons;
}

/// The window with the program's own texts in one of their languages.
struct TranslatedWindow : OpenWindow {
    explicit TranslatedWindow(const char *language)
        : OpenWindow(smallFamily(), [language](OpenWindow &open) {
              demo::writeLanguageDatabase(open.hostFolder() + u"/ADD-IN-LANGUAGE.MDB"_s);
              open.program.host.inischreiben(open.settings(), u"Ansicht"_s, u"Sprache"_s, QLatin1String(language));
          })
    {
    }
};

inline void markElsewhere(const OpenWindow &open, const QString &statement)
{
    dao::Engine other;
    other.openDatabase(open.family())->execute(statement);
}

/// Seven persons in three generations; by name: 1 to 7. The women are 2, 4 and 6.
inline std::vector<TestPerson> smallFamily()
{
    return {
        {.counter = 1, .listname = "Adler, Hans", .birth = -36000, .death = -10000},
        {.counter = 2, .listname = "Bär, Eva", .sex = "W", .birth = -35000, .death = 5000},
        {.counter = 3, .listname = "Claus, Ernst", .birth = -25000, .death = 2000, .father = 1, .mother = 2},
        {.counter = 4, .listname = "Dorn, Ida", .sex = "W", .birth = -24000, .death = 100, .father = 1, .mother = 2},
        {.counter = 5, .listname = "Eck, Emil", .birth = -15000, .father = 3},
        {.counter = 6, .listname = "Falk, Rosa", .sex = "W", .birth = -14000, .mother = 4},
        {.counter = 7, .listname = "Müller, O'Neil", .birth = 20000, .changed = 40000}};
}

} // namespace kalvenor::test
