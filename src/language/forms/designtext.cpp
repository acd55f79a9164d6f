// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/designtext.h"

#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "language/texts/catalogue.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVariantMap>

namespace kalvenor::language {

QString tagOf(Text id)
{
    return id == Text::None ? QString() : QString::number(static_cast<qint16>(id));
}

QString designTextOf(Text id)
{
    return wording(id, CatalogueLanguage::German);
}

QString textProperty(const QObject *object, const char *property)
{
    return object->property(property).toString();
}

QObject *carrierOf(QObject *item)
{
    if (auto *menu = qobject_cast<QMenu *>(item))
        return menu->menuAction();
    if (auto *button = qobject_cast<QToolButton *>(item); button && button->defaultAction())
        return button->defaultAction();
    return item;
}

const char *captionProperty(const QObject *carrier)
{
    if (qobject_cast<const QAction *>(carrier) || qobject_cast<const QAbstractButton *>(carrier) ||
        qobject_cast<const QLabel *>(carrier))
        return "text";
    if (qobject_cast<const QGroupBox *>(carrier))
        return "title";
    if (qobject_cast<const QLineEdit *>(carrier) || qobject_cast<const QTextEdit *>(carrier) ||
        qobject_cast<const QPlainTextEdit *>(carrier))
        return "placeholderText";
    const auto *widget = qobject_cast<const QWidget *>(carrier);
    if (qobject_cast<const QDockWidget *>(carrier) || qobject_cast<const QToolBar *>(carrier) ||
        (widget && widget->isWindow()))
        return "windowTitle";
    return "accessibleName";
}

void showCaption(QObject *carrier, const QString &text)
{
    const char *property = captionProperty(carrier);
    const bool takesKey = qstrcmp(property, "text") == 0 || qstrcmp(property, "title") == 0;
    carrier->setProperty(property, takesKey ? text : withoutAccessKey(text));
}

void showHeading(QHeaderView *header, int column, const QString &shown)
{
    if (!header->model() || !header->model()->setHeaderData(column, Qt::Horizontal, shown, Qt::DisplayRole))
        qWarning("The model of \"%s\" does not take a heading for column %d.",
                 qUtf8Printable(header->parent() ? header->parent()->objectName() : QString()), column);
}

void setDesignText(QObject *item, Text caption, Text tooltip)
{
    QObject *carrier = carrierOf(item);
    if (caption != Text::None) {
        carrier->setProperty(Tag, tagOf(caption));
        showCaption(carrier, designTextOf(caption));
    }
    if (tooltip != Text::None) {
        carrier->setProperty(TooltipTag, tagOf(tooltip));
        carrier->setProperty("toolTip", designTextOf(tooltip));
        if (auto *button = qobject_cast<QAbstractButton *>(item); button && button->text().isEmpty())
            button->setAccessibleName(designTextOf(tooltip));
    }
}

void setDesignToolCaption(QAction *action, Text caption)
{
    action->setProperty(ToolTag, tagOf(caption));
    action->setIconText(designTextOf(caption));
}

void setDesignTab(QTabBar *tabs, int index, Text caption, Text tooltip)
{
    tabs->setTabData(index,
                     QVariantMap{{QLatin1String(Tag), tagOf(caption)}, {QLatin1String(TooltipTag), tagOf(tooltip)}});
    tabs->setTabText(index, designTextOf(caption));
    tabs->setTabToolTip(index, designTextOf(tooltip));
}

void setDesignTab(QTabWidget *tabs, int index, Text caption, Text tooltip)
{
    setDesignTab(tabs->tabBar(), index, caption, tooltip);
}

void setDesignHeading(QHeaderView *header, int column, Text caption)
{
    QVariantMap headings = header->property(Headings).toMap();
    headings.insert(QString::number(column), tagOf(caption));
    header->setProperty(Headings, headings);
    showHeading(header, column, designTextOf(caption));
}

} // namespace kalvenor::language
