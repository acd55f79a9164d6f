// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/openwindow.h"
#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>

using namespace kalvenor;
using namespace kalvenor::test;

namespace {

QAccessibleInterface &seen(QObject &object)
{
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(&object);
    if (found == nullptr)
        throw std::runtime_error("not accessible");
    return *found;
}

} // namespace

TEST(Accessible, AListHasRowsWithNamesSelectionAndPosition)
{
    OpenWindow open(smallFamily());
    auto &view = open.view(PersonList::Unmarked);
    QAccessibleInterface &list = seen(view);
    EXPECT_EQ(list.role(), QAccessible::List);
    EXPECT_EQ(list.text(QAccessible::Name), "Nicht markierte Personen");
    ASSERT_EQ(list.childCount(), 7);
    open.select(PersonList::Unmarked, {3});

    for (int row = 0; row < 7; ++row) {
        QAccessibleInterface *child = list.child(row);
        ASSERT_NE(child, nullptr);
        EXPECT_EQ(child, list.child(row)) << "one interface a row";
        EXPECT_EQ(child->role(), QAccessible::ListItem);
        EXPECT_EQ(child->text(QAccessible::Name), open.controller().model(PersonList::Unmarked).nameAt(row));
        EXPECT_EQ(child->state().selected, row == 2);
        EXPECT_EQ(child->state().focused, row == 2);
        EXPECT_EQ(list.indexOfChild(child), row);
        EXPECT_EQ(child->tableCellInterface()->rowIndex(), row);
        EXPECT_EQ(list.childAt(child->rect().center().x(), child->rect().center().y()), child);
    }
    EXPECT_EQ(list.child(7), nullptr);
    EXPECT_EQ(list.focusChild(), list.child(2));
    auto *table = list.tableInterface();
    EXPECT_EQ(table->selectedRows(), QList<int>{2});
    EXPECT_TRUE(table->selectRow(4));
    EXPECT_TRUE(table->unselectRow(2));
    EXPECT_EQ(view.selectedCounters(), Counters{5});
    list.child(0)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(view.selectedCount(), 2);

    open.window->selectionPanel().moveSelected(PersonList::Unmarked);
    EXPECT_EQ(list.childCount(), 5);
    EXPECT_EQ(list.child(0)->text(QAccessible::Name), "Bär, Eva");
    EXPECT_EQ(seen(open.view(PersonList::Marked)).childCount(), 2);
}

TEST(Accessible, NoControlIsWithoutAName)
{
    for (const char *language : {"Deutsch", "English"}) {
        TranslatedWindow open(language);
        open.window->selectionPanel().filterPanel().setUnfolded(true);
        for (int tab = 0; tab < 3; ++tab) {
            open.window->statisticsPanel().tabs().setCurrentIndex(tab);
            for (QWidget *widget : open.window->findChildren<QWidget *>()) {
                const bool control = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget) ||
                                     qobject_cast<QComboBox *>(widget) || qobject_cast<QAbstractItemView *>(widget) ||
                                     (widget->focusPolicy() & Qt::TabFocus) != 0;
                if (!control || !widget->isVisible() || widget->focusProxy() != nullptr)
                    continue;
                const QString name = seen(*widget).text(QAccessible::Name);
                EXPECT_FALSE(name.trimmed().isEmpty() || name.contains(u'&'))
                    << language << ": " << widget->metaObject()->className() << " in "
                    << widget->parentWidget()->objectName().toStdString() << " '" << widget->objectName().toStdString()
                    << "' named '" << name.toStdString() << "'";
            }
        }
    }
}
