// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/designtext.h"

#include <algorithm>

#include "language/forms/widgetform.h"

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

Designed split(const QString &designed)
{
    const auto *end = std::find_if(designed.begin(), designed.end(), [](QChar c) { return c < u'0' || c > u'9'; });
    const qsizetype digits = end - designed.begin();
    const bool blank = digits > 0 && designed.mid(digits).startsWith(u' ');
    return {designed.left(digits), designed.mid(digits + (blank ? 1 : 0))};
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

void showHeading(QHeaderView *header, int column, const QString &shown)
{
    if (!header->model() || !header->model()->setHeaderData(column, Qt::Horizontal, shown, Qt::DisplayRole))
        qWarning("The model of \"%s\" does not take a heading for column %d.",
                 qUtf8Printable(header->parent() ? header->parent()->objectName() : QString()), column);
}

void setDesignText(QObject *item, const QString &caption, const QString &tooltip)
{
    QObject *carrier = carrierOf(item);
    if (!caption.isEmpty()) {
        const Designed designed = split(caption);
        carrier->setProperty(Tag, designed.tag);
        carrier->setProperty(DesignText, designed.text);
        carrier->setProperty(captionProperty(carrier), designed.text);
    }
    if (!tooltip.isEmpty()) {
        const Designed designed = split(tooltip);
        carrier->setProperty(TooltipTag, designed.tag);
        carrier->setProperty(DesignTooltip, designed.text);
        carrier->setProperty("toolTip", designed.text);
        if (auto *button = qobject_cast<QAbstractButton *>(item); button && button->text().isEmpty())
            button->setAccessibleName(designed.text);
    }
}

void setDesignToolCaption(QAction *action, const QString &caption)
{
    const Designed designed = split(caption);
    action->setProperty(ToolTag, designed.tag);
    action->setProperty(DesignToolText, designed.text);
    action->setIconText(designed.text);
}

void setDesignTab(QTabBar *tabs, int index, const QString &caption, const QString &tooltip)
{
    const Designed text = split(caption);
    const Designed help = split(tooltip);
    tabs->setTabData(index, QVariantMap{{QLatin1String(Tag), text.tag},
                                        {QLatin1String(DesignText), text.text},
                                        {QLatin1String(TooltipTag), help.tag},
                                        {QLatin1String(DesignTooltip), help.text}});
    tabs->setTabText(index, text.text);
    tabs->setTabToolTip(index, help.text);
}

void setDesignTab(QTabWidget *tabs, int index, const QString &caption, const QString &tooltip)
{
    setDesignTab(tabs->tabBar(), index, caption, tooltip);
}

void setDesignHeading(QHeaderView *header, int column, const QString &caption)
{
    QVariantMap headings = header->property(Headings).toMap();
    headings.insert(QString::number(column), caption);
    header->setProperty(Headings, headings);
    showHeading(header, column, split(caption).text);
}

} // namespace kalvenor::language
