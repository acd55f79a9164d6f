// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/shortcutwindow.h"

#include <map>
#include <QAction>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

constexpr QSize WantedSize(520, 620);
constexpr int ScreenMargin = 80;

QString plain(QString caption)
{
    return caption.remove(u'&').remove(u"…"_s).remove(u" ..."_s).toHtmlEscaped();
}

QString rowsOf(const QList<QAction *> &actions, QList<const QAction *> &told)
{
    QString rows;
    for (const QAction *action : actions) {
        if (action->shortcut().isEmpty() || told.contains(action))
            continue;
        told << action;
        rows += u"<tr><td width='45%'>%1</td><td>%2</td></tr>"_s.arg(
            action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(), plain(action->text()));
    }
    return rows;
}

QString section(const QString &title, const QString &rows)
{
    return rows.isEmpty() ? QString() : u"<h4>%1</h4><table width='100%'>%2</table>"_s.arg(plain(title), rows);
}

/// What the part of the window that the action belongs to is called.
QString partOf(const QAction &action)
{
    for (const QObject *at = action.parent(); at != nullptr; at = at->parent()) {
        const auto *widget = qobject_cast<const QWidget *>(at);
        if (widget != nullptr && !widget->isWindow() && !widget->accessibleName().isEmpty())
            return widget->accessibleName();
    }
    return {};
}

QString keysOf(const QMainWindow &window)
{
    QList<const QAction *> told;
    QString text;
    for (const QAction *entry : window.menuBar()->actions())
        text += section(entry->text(), rowsOf(entry->menu()->actions(), told));
    QStringList parts;
    std::map<QString, QList<QAction *>> byPart;
    for (QAction *action : window.findChildren<QAction *>()) {
        const QString part = partOf(*action);
        if (action->shortcut().isEmpty() || told.contains(action) || action->text().isEmpty())
            continue;
        if (!parts.contains(part))
            parts << part;
        byPart[part] << action;
    }
    for (const QString &part : std::as_const(parts))
        text += section(part, rowsOf(byPart[part], told));
    return text;
}

} // namespace

ShortcutWindow::ShortcutWindow(data::Session &session, QMainWindow &window) : QDialog(&window)
{
    language::Sprachmodul &texts = session.language;
    setObjectName(u"Tastenfenster"_s);
    setWindowTitle(texts.text(Text::Shortcuts));
    auto *text = new QTextBrowser(this);
    text->setObjectName(u"Tastenliste"_s);
    text->setAccessibleName(texts.text(Text::Shortcuts));
    text->setHtml(u"<p>%1</p>"_s.arg(texts.text(Text::MovingHelp).toHtmlEscaped()) + keysOf(window));
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(texts.text(Text::Close), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(buttons);
    resize(WantedSize.boundedTo(window.screen()->availableSize() - QSize(ScreenMargin, ScreenMargin)));
}

} // namespace kalvenor::app
