// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/widgetform.h"

#include "language/texts.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QDialog>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

using namespace kalvenor;
using language::setDesignText;

namespace {

const std::vector<test::TextRow> Full = {
    {3, "Drei", "Three"},
    {180, "&Drucken", "&Print"},
    {1204, "Liste auf neuer Seite beginnen", "Begin list on a new page"},
    {20000, "Altersstatistik", "Age statistic"},
    {20001, "Liste", "List"},
    {20002, "&Filter", "&Find"},
    {20003, "&Speichern ...", "&Save ..."},
    {20004, "Sichern", "Keep"},
    {20005, "Zuletzt &benutzt", "&Recent"},
    {20006, "Name", "Family name"},
    {20007, "Geburt", "Birth"},
    {20008, "Nach rechts", "To the right"},
    {20009, "Personen", "Persons"},
    {20010, "Teil des Namens", "Part of the name"},
    {20011, "Werkzeuge", "Tools"},
    {20012, "&Grafik", "&Chart"},
};

struct Shown {
    const char *what;
    QString text, german, english;
};

/// One of every kind, and of everything something that carries no identifier.
struct Window : QMainWindow {
    Window()
    {
        setObjectName("Auswahl");
        setDesignText(this, "20000Altersstatistik");
        setDesignText(file, "180 &Drucken");
        setDesignText(save, "20003&Speichern ...", "20009Personen");
        file->addAction(save);
        file->addSeparator();
        setDesignText(recent, "20005Zuletzt &benutzt");
        recent->addAction(recentFile);
        setDesignText(contextEntry, "20012&Grafik");
        list->addAction(contextEntry);

        setDesignText(tools, "20011Werkzeuge");
        tools->addAction(save);
        language::setDesignToolCaption(save, "20004Sichern");
        setDesignText(chart, "20012&Grafik", "1204Liste auf neuer Seite beginnen");
        chart->setMenu(chartMenu);
        setDesignText(chartEntry, "20002&Filter");
        chartMenu->addAction(chartEntry);
        tools->addAction(chart);
        tools->addSeparator();
        tools->addAction(plain);
        tools->addWidget(inTools);
        setDesignText(inTools, "20009Personen");

        setDesignText(group, "20001Liste");
        setDesignText(check, "1204Liste auf neuer Seite beginnen", "20008Nach rechts");
        setDesignText(nameLabel, "20006Name");
        nameLabel->setBuddy(nameEdit);
        setDesignText(nameEdit, "20010Teil des Namens");
        nameEdit->setText("Müller");
        setDesignText(iconButton, {}, "20008Nach rechts");
        move->setDefaultAction(moveAction);
        setDesignText(move, "20002&Filter", "20008Nach rechts");
        count->setToolTip("3 Personen");

        tabs->addTab(new QWidget, {});
        tabs->addTab(new QWidget, "3 Dinge");
        language::setDesignTab(tabs, 0, "20012&Grafik", "20009Personen");
        tabs->setTabToolTip(1, "3 Dinge");

        proxy->setSourceModel(model);
        list->setModel(proxy);
        language::setDesignHeading(list->header(), 0, "20006Name");
        language::setDesignHeading(list->header(), 2, "20007Geburt");
        setDesignText(list, "20009Personen", "20008Nach rechts");

        statusBar()->addPermanentWidget(panel);
        setDesignText(panel, {}, "20009Personen");
        setDesignText(dock, "20002&Filter");
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        setDesignText(dialog, "20000Altersstatistik");
        setDesignText(inDialog, "20001Liste");
    }

    QMenu *file = menuBar()->addMenu(QString());
    QAction *save = new QAction(this);
    QMenu *recent = file->addMenu(QString());
    QAction *recentFile = new QAction("3 Personen.kvl", this);
    QToolBar *tools = addToolBar(QString());
    QAction *chart = new QAction(this);
    QMenu *chartMenu = new QMenu(this);
    QAction *chartEntry = new QAction(this);
    QAction *plain = new QAction("3 mal", this);
    QPushButton *inTools = new QPushButton;
    QGroupBox *group = new QGroupBox(this);
    QCheckBox *check = new QCheckBox(group);
    QLabel *nameLabel = new QLabel(group);
    QLabel *count = new QLabel("3 von 7", group);
    QLineEdit *nameEdit = new QLineEdit(group);
    QPushButton *iconButton = new QPushButton(group);
    QToolButton *move = new QToolButton(group);
    QAction *moveAction = new QAction(this);
    QTabWidget *tabs = new QTabWidget(this);
    QTreeView *list = new QTreeView(this);
    QAction *contextEntry = new QAction(this);
    QStandardItemModel *model = new QStandardItemModel(0, 3, this);
    QSortFilterProxyModel *proxy = new QSortFilterProxyModel(this);
    QLabel *panel = new QLabel("familie.mdb");
    QDockWidget *dock = new QDockWidget(this);
    QDialog *dialog = new QDialog(this);
    QLabel *inDialog = new QLabel(dialog);

    QToolButton *toolButton(QAction *action) const
    {
        return qobject_cast<QToolButton *>(tools->widgetForAction(action));
    }
    QString heading(int column) const { return model->headerData(column, Qt::Horizontal).toString(); }

    std::vector<Shown> captions() const
    {
        return {{"title", windowTitle(), "Altersstatistik", "Age statistic"},
                {"menu", file->title(), "&Drucken", "&Print"},
                {"submenu", recent->title(), "Zuletzt &benutzt", "&Recent"},
                {"entry", save->text(), "&Speichern ...", "&Save ..."},
                {"context entry", contextEntry->text(), "&Grafik", "&Chart"},
                {"short tool caption", toolButton(save)->text(), "Sichern", "Keep"},
                {"tool button", chart->text(), "&Grafik", "&Chart"},
                {"button menu", chartEntry->text(), "&Filter", "&Find"},
                {"tool bar", tools->windowTitle(), "Werkzeuge", "Tools"},
                {"control in tool bar", inTools->text(), "Personen", "Persons"},
                {"group", group->title(), "Liste", "List"},
                {"check", check->text(), "Liste auf neuer Seite beginnen", "Begin list on a new page"},
                {"label", nameLabel->text(), "Name", "Family name"},
                {"entry field", nameEdit->placeholderText(), "Teil des Namens", "Part of the name"},
                {"icon button", iconButton->accessibleName(), "Nach rechts", "To the right"},
                {"button of action", move->text(), "Filter", "Find"},
                {"tab", tabs->tabText(0), "&Grafik", "&Chart"},
                {"heading", heading(0), "Name", "Family name"},
                {"far heading", heading(2), "Geburt", "Birth"},
                {"list", list->accessibleName(), "Personen", "Persons"},
                {"dock", dock->windowTitle(), "&Filter", "&Find"}};
    }
    std::vector<Shown> tooltips() const
    {
        return {
            {"short tool caption", toolButton(save)->toolTip(), "Personen", "Persons"},
            {"tool button", toolButton(chart)->toolTip(), "Liste auf neuer Seite beginnen", "Begin list on a new page"},
            {"check", check->toolTip(), "Nach rechts", "To the right"},
            {"icon button", iconButton->toolTip(), "Nach rechts", "To the right"},
            {"button of action", move->toolTip(), "Nach rechts", "To the right"},
            {"tab", tabs->tabToolTip(0), "Personen", "Persons"},
            {"list", list->toolTip(), "Nach rechts", "To the right"},
            {"panel", panel->toolTip(), "Personen", "Persons"}};
    }
};

enum class Expected { German, English, GermanWithoutHost, Nothing };

void expectTexts(const std::vector<Shown> &shown, Expected expected)
{
    for (const Shown &row : shown) {
        // A text of the host's own range that the database lacks shows as four question marks.
        const bool isHostText = row.english == "&Print" || row.english == "Begin list on a new page";
        const QString text = expected == Expected::Nothing                           ? QString()
                             : expected == Expected::English                         ? row.english
                             : expected == Expected::GermanWithoutHost && isHostText ? "????"
                                                                                     : row.german;
        EXPECT_EQ(row.text, text) << row.what;
    }
}

void expectTexts(const Window &window, Expected expected)
{
    expectTexts(window.captions(), expected);
    expectTexts(window.tooltips(), expected);
}

} // namespace

TEST(WidgetForm, IsReadableBeforeItIsTranslated)
{
    const Window window;
    expectTexts(window, Expected::German);
}

TEST(WidgetForm, ShowsTheTextsOfTheLanguageOrItsOwn)
{
    const struct {
        const char *language;
        std::vector<test::TextRow> rows;
        Expected expected;
    } cases[] = {
        {"Deutsch", Full, Expected::German},
        {"English", Full, Expected::English},
        {"English", {}, Expected::GermanWithoutHost},
        {"Suomi", Full, Expected::GermanWithoutHost},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.language);
        test::Texts texts(row.rows, row.language);
        Window window;
        for (int time = 1; time <= 2; ++time) { // a second time changes nothing
            formuebersetzen(window, texts.module, texts.host);
            expectTexts(window, row.expected);
        }
        EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
        // What has no identifier stays, whatever digits it begins with.
        EXPECT_EQ(window.count->text(), "3 von 7");
        EXPECT_EQ(window.count->toolTip(), "3 Personen");
        EXPECT_EQ(window.nameEdit->text(), "Müller");
        EXPECT_EQ(window.recentFile->text(), "3 Personen.kvl");
        EXPECT_EQ(window.plain->text(), "3 mal");
        EXPECT_EQ(window.tabs->tabText(1), "3 Dinge");
        EXPECT_EQ(window.tabs->tabToolTip(1), "3 Dinge");
        EXPECT_EQ(window.panel->text(), "familie.mdb");
        EXPECT_EQ(window.heading(1), "2") << "Qt's own number of the column";
        EXPECT_TRUE(window.file->actions().last()->isSeparator());
        EXPECT_EQ(window.file->actions().last()->text(), "");
        // A dialog is a form of its own.
        EXPECT_EQ(window.dialog->windowTitle(), "Altersstatistik");
        EXPECT_EQ(window.inDialog->text(), "Liste");
    }
}

TEST(WidgetForm, RemovesTooltipsWhereShortHelpIsOff)
{
    test::Texts texts(Full, "English");
    texts.host.Kurzhilfe = 0;
    Window window;
    formuebersetzen(window, texts.module, texts.host);
    expectTexts(window.captions(), Expected::English);
    // Qt gives a tool button its action's text for a tooltip, again whenever the action changes.
    for (QAction *action : {window.save, window.chart, window.plain, window.moveAction})
        action->setEnabled(false);
    expectTexts(window.tooltips(), Expected::Nothing);
    EXPECT_EQ(window.toolButton(window.plain)->toolTip(), "");
    EXPECT_EQ(window.count->toolTip(), "");
    EXPECT_EQ(window.tabs->tabToolTip(1), "");

    Window container;
    container.setObjectName("Container");
    formuebersetzen(container, texts.module, texts.host);
    EXPECT_EQ(container.check->toolTip(), "To the right");
    EXPECT_EQ(container.panel->toolTip(), "Persons");
    EXPECT_EQ(container.toolButton(container.chart)->toolTip(), "") << "its tool bar buttons are not excepted";
}

TEST(WidgetForm, SharesAnActionBetweenMenuAndToolBar)
{
    test::Texts texts(Full, "English");
    QMainWindow window;
    QAction *action = window.menuBar()->addMenu("Datei")->addAction("x");
    QToolBar *tools = window.addToolBar("x");
    tools->addAction(action);
    setDesignText(action, "20003&Speichern ...");
    formuebersetzen(window, texts.module, texts.host);
    EXPECT_EQ(action->text(), "&Save ...");
    EXPECT_FALSE(qobject_cast<QToolButton *>(tools->widgetForAction(action))->text().contains(u'&'));
}
