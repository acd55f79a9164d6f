// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/widgetdesktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QWindow>

namespace kalvenor {

namespace {

constexpr int MessageInformation = 64;

QMessageBox::Icon iconOf(int style)
{
    switch (style) {
    case MessageCritical:
        return QMessageBox::Critical;
    case MessageInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

bool anyWindowOnTop()
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const QWindow *handle = window->windowHandle();
        if (window->isVisible() && handle != nullptr && handle->flags().testFlag(Qt::WindowStaysOnTopHint))
            return true;
    }
    return false;
}

} // namespace

int WidgetDesktop::messageBox(const QString &text, int style, const QString &title)
{
    const bool hourglass = m_hourglass;
    setPointer(Pointer::Default);
    QMessageBox box(iconOf(style), title.isEmpty() ? QApplication::applicationDisplayName() : title, text,
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setObjectName(QStringLiteral("Meldung"));
    box.setTextFormat(Qt::PlainText); // file names and names of persons are no markup
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Behind a window that stays on top nobody would see it.
    box.setWindowFlag(Qt::WindowStaysOnTopHint, anyWindowOnTop());
    box.exec();
    setPointer(hourglass ? Pointer::Hourglass : Pointer::Default);
    return ResultOk;
}

void WidgetDesktop::runtimeError(const Error &error)
{
    messageBox(error.message(), MessageCritical, QStringLiteral("Run-time error %1").arg(error.number()));
}

void WidgetDesktop::setPointer(Pointer pointer)
{
    const bool hourglass = pointer == Pointer::Hourglass;
    if (hourglass == m_hourglass)
        return;
    m_hourglass = hourglass;
    if (hourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

} // namespace kalvenor
