// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/widgetform.h"

#include "language/texts.h"
#include "language/texts/catalogue.h"
#include <functional>
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

using language::Text;

QString german(Text id)
{
    return wording(id, language::CatalogueLanguage::German);
}

QString english(Text id)
{
    return wording(id, language::CatalogueLanguage::English);
}

/// A host's database that words every text in its own way.
std::vector<test::TextRow> hostRows()
{
    std::vector<test::TextRow> rows;
    for (const language::CatalogueText &entry : language::catalogue())
        rows.push_back({static_cast<int>(entry.id), german(entry.id) + u'!', english(entry.id) + u'!'});
    return rows;
}

struct Shown {
    const char *what;
    QString text;
    Text id;
};

/// One of every kind, and of everything something that carries no identifier.
struct Window : QMainWindow {
    Window()
    {
        setObjectName("Auswahl");
        setDesignText(this, Text::AgeStatistic);
        setDesignText(file, Text::PreviewMenuPrint);
        setDesignText(save, Text::MenuSaveTemplate, Text::MarkedPersons);
        file->addAction(save);
        file->addSeparator();
        setDesignText(recent, Text::MenuRecentTemplates);
        recent->addAction(recentFile);
        setDesignText(contextEntry, Text::MenuChart);
        list->addAction(contextEntry);

        setDesignText(tools, Text::TextFormats);
        tools->addAction(save);
        language::setDesignToolCaption(save, Text::ToolSave);
        setDesignText(chart, Text::MenuChart, Text::ListOnNewPage);
        chart->setMenu(chartMenu);
        setDesignText(chartEntry, Text::MenuFilter);
        chartMenu->addAction(chartEntry);
        tools->addAction(chart);
        tools->addSeparator();
        tools->addAction(plain);
        tools->addWidget(inTools);
        setDesignText(inTools, Text::MarkedPersons);

        setDesignText(group, Text::FilterList);
        setDesignText(check, Text::ListOnNewPage, Text::MarkPersonTip);
        setDesignText(nameLabel, Text::Name);
        nameLabel->setBuddy(nameEdit);
        setDesignText(nameEdit, Text::FilterNameTip);
        nameEdit->setText("Müller");
        setDesignText(iconButton, {}, Text::MarkPersonTip);
        move->setDefaultAction(moveAction);
        setDesignText(move, Text::MenuFilter, Text::MarkPersonTip);
        count->setToolTip("3 Personen");

        tabs->addTab(new QWidget, {});
        tabs->addTab(new QWidget, "3 Dinge");
        language::setDesignTab(tabs, 0, Text::MenuChart, Text::MarkedPersons);
        tabs->setTabToolTip(1, "3 Dinge");

        proxy->setSourceModel(model);
        list->setModel(proxy);
        language::setDesignHeading(list->header(), 0, Text::Name);
        language::setDesignHeading(list->header(), 2, Text::Age);
        setDesignText(list, Text::MarkedPersons, Text::MarkPersonTip);

        statusBar()->addPermanentWidget(panel);
        setDesignText(panel, {}, Text::MarkedPersons);
        setDesignText(dock, Text::Pages);
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        setDesignText(dialog, Text::AgeStatistic);
        setDesignText(inDialog, Text::FilterList);
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
        return {{"title", windowTitle(), Text::AgeStatistic},
                {"menu", file->title(), Text::PreviewMenuPrint},
                {"submenu", recent->title(), Text::MenuRecentTemplates},
                {"entry", save->text(), Text::MenuSaveTemplate},
                {"context entry", contextEntry->text(), Text::MenuChart},
                {"short tool caption", toolButton(save)->text(), Text::ToolSave},
                {"tool button", chart->text(), Text::MenuChart},
                {"button menu", chartEntry->text(), Text::MenuFilter},
                {"tool bar", tools->windowTitle(), Text::TextFormats},
                {"control in tool bar", inTools->text(), Text::MarkedPersons},
                {"group", group->title(), Text::FilterList},
                {"check", check->text(), Text::ListOnNewPage},
                {"label", nameLabel->text(), Text::Name},
                {"entry field", nameEdit->placeholderText(), Text::FilterNameTip},
                {"icon button", iconButton->accessibleName(), Text::MarkPersonTip},
                {"button of action", moveAction->text(), Text::MenuFilter},
                {"tab", tabs->tabText(0), Text::MenuChart},
                {"heading", heading(0), Text::Name},
                {"far heading", heading(2), Text::Age},
                {"list", list->accessibleName(), Text::MarkedPersons},
                {"dock", dock->windowTitle(), Text::Pages}};
    }
    std::vector<Shown> tooltips() const
    {
        return {{"short tool caption", toolButton(save)->toolTip(), Text::MarkedPersons},
                {"tool button", toolButton(chart)->toolTip(), Text::ListOnNewPage},
                {"check", check->toolTip(), Text::MarkPersonTip},
                {"icon button", iconButton->toolTip(), Text::MarkPersonTip},
                {"button of action", move->toolTip(), Text::MarkPersonTip},
                {"tab", tabs->tabToolTip(0), Text::MarkedPersons},
                {"list", list->toolTip(), Text::MarkPersonTip},
                {"panel", panel->toolTip(), Text::MarkedPersons}};
    }
};

using Wording = std::function<QString(Text)>;

Wording hosts(const Wording &word)
{
    return [word](Text id) {
        return word(id) + u'!';
    };
}

/// A text of the host's own range that its database lacks shows as four question marks.
Wording ours(const Wording &word)
{
    return [word](Text id) {
        return static_cast<int>(id) < language::FirstOwnText ? "????" : word(id);
    };
}

void expectTexts(const std::vector<Shown> &shown, const Wording &word)
{
    for (const Shown &row : shown)
        EXPECT_EQ(row.text, word(row.id)) << row.what;
}

void expectTexts(const Window &window, const Wording &word)
{
    expectTexts(window.captions(), word);
    expectTexts(window.tooltips(), word);
}

} // namespace

TEST(WidgetForm, IsReadableBeforeItIsTranslated)
{
    const Window window;
    expectTexts(window, german);
}

TEST(WidgetForm, ShowsTheTextsOfTheLanguageOrItsOwn)
{
    const struct {
        const char *language;
        std::vector<test::TextRow> rows;
        Wording expected;
    } cases[] = {
        {"Deutsch", hostRows(), hosts(german)}, {"English", hostRows(), hosts(english)}, {"Deutsch", {}, ours(german)},
        {"English", {}, ours(english)},         {"Suomi", hostRows(), ours(english)},
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
        EXPECT_FALSE(window.toolButton(window.chart)->text().contains('&')) << "only menus have access keys";
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
    test::Texts texts(hostRows(), "English");
    texts.host.Kurzhilfe = 0;
    Window window;
    formuebersetzen(window, texts.module, texts.host);
    expectTexts(window.captions(), hosts(english));
    // Qt gives a tool button its action's text for a tooltip, again whenever the action changes.
    for (QAction *action : {window.save, window.chart, window.plain, window.moveAction})
        action->setEnabled(false);
    expectTexts(window.tooltips(), [](Text) { return QString(); });
    EXPECT_EQ(window.toolButton(window.plain)->toolTip(), "");
    EXPECT_EQ(window.count->toolTip(), "");
    EXPECT_EQ(window.tabs->tabToolTip(1), "");

    Window container;
    container.setObjectName("Container");
    formuebersetzen(container, texts.module, texts.host);
    EXPECT_EQ(container.check->toolTip(), "Mark person!");
    EXPECT_EQ(container.panel->toolTip(), "Marked persons!");
    EXPECT_EQ(container.toolButton(container.chart)->toolTip(), "") << "its tool bar buttons are not excepted";
}
