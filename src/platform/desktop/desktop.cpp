// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/desktop.h"

#include "platform/desktop/terminal.h"
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kalvenor::desktop {

bool Desktop::setStackPlace(QWindow *window, StackPlace place, bool activate)
{
    if (window == nullptr)
        return false;
    switch (place) {
    case StackPlace::TopMost:
        window->setFlag(Qt::WindowStaysOnTopHint, true);
        break;
    case StackPlace::NotTopMost:
        window->setFlag(Qt::WindowStaysOnTopHint, false);
        break;
    case StackPlace::Top:
        window->raise();
        break;
    }
    if (activate)
        window->requestActivate();
    return true;
}

int Desktop::ask(const Question &question)
{
    const int buttons = question.no.isEmpty() ? ButtonsOkCancel : ButtonsYesNoCancel;
    const int answer = messageBox(question.text, buttons + MessageQuestion, question.title);
    return answer == ResultOk ? ResultYes : answer;
}

QString Desktop::openFileName(QWidget *, const FileQuestion &)
{
    return {};
}

QString Desktop::saveFileName(QWidget *, const FileQuestion &)
{
    return {};
}

QString Desktop::chooseFolder(QWidget *, const FileQuestion &)
{
    return {};
}

bool Desktop::runDialog(QDialog &)
{
    return false;
}

int TerminalDesktop::messageBox(const QString &text, int, const QString &title)
{
    writeError(title.isEmpty() ? text : title + u": "_s + text);
    return ResultOk;
}

void TerminalDesktop::runtimeError(const QString &title, const QString &message)
{
    writeError(title + u": "_s + message);
}

} // namespace kalvenor::desktop
