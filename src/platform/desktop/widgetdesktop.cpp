// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/widgetdesktop.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kalvenor::desktop {

namespace {

constexpr int MessageInformation = 64;

constexpr int ButtonMask = 7;
constexpr int IconMask = 0x70;

QMessageBox::StandardButtons buttonsOf(int style)
{
    switch (style & ButtonMask) {
    case ButtonsOkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case ButtonsYesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case ButtonsYesNo:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style)
{
    switch (style & IconMask) {
    case MessageQuestion:
        return QMessageBox::Question;
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

/// The active window; while there is none, as when a dialog has just closed, the one that was made last.
QWidget *windowInFront()
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    QWidget *last = nullptr;
    qsizetype place = -1;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const Qt::WindowType type = window->windowType();
        const qsizetype at = windows.indexOf(window->windowHandle());
        if (window->isVisible() && (type == Qt::Window || type == Qt::Dialog) && at > place) {
            last = window;
            place = at;
        }
    }
    return last;
}

} // namespace

int WidgetDesktop::messageBox(const QString &text, int style, const QString &title)
{
    QMessageBox box(iconOf(style), title.isEmpty() ? QApplication::applicationDisplayName() : title, text,
                    buttonsOf(style), windowInFront());
    switch (showBox(box)) {
    case QMessageBox::Yes:
        return ResultYes;
    case QMessageBox::No:
        return ResultNo;
    case QMessageBox::Cancel:
        return ResultCancel;
    default:
        return ResultOk;
    }
}

int WidgetDesktop::ask(const Question &question)
{
    QMessageBox box(QMessageBox::Question, question.title, question.text, QMessageBox::Cancel, windowInFront());
    QPushButton *yes = box.addButton(question.yes, QMessageBox::AcceptRole);
    const QAbstractButton *no =
        question.no.isEmpty() ? nullptr : box.addButton(question.no, QMessageBox::DestructiveRole);
    box.setDefaultButton(yes);
    showBox(box);
    const QAbstractButton *clicked = box.clickedButton();
    return clicked == yes ? ResultYes : clicked != nullptr && clicked == no ? ResultNo : ResultCancel;
}

int WidgetDesktop::showBox(QMessageBox &box)
{
    const bool hourglass = m_hourglass;
    setPointer(Pointer::Default);
    box.setObjectName(u"Meldung"_s);
    box.setTextFormat(Qt::PlainText); // file names and names of persons are no markup
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Behind a window that stays on top nobody would see it.
    box.setWindowFlag(Qt::WindowStaysOnTopHint, anyWindowOnTop());
    const int answer = box.exec();
    setPointer(hourglass ? Pointer::Hourglass : Pointer::Default);
    return answer;
}

void WidgetDesktop::runtimeError(const QString &title, const QString &message)
{
    messageBox(message, MessageCritical, title);
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

QString WidgetDesktop::openFileName(QWidget *parent, const FileQuestion &question)
{
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return askForFile(dialog, question);
}

QString WidgetDesktop::saveFileName(QWidget *parent, const FileQuestion &question)
{
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave); // asks before an existing file is replaced
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(question.suffix);
    // Who chooses a type of file means its suffix.
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        static const QRegularExpression oneSuffix(u"\\(\\*\\.(\\w+)\\)"_s);
        if (const auto match = oneSuffix.match(filter); match.hasMatch())
            dialog.setDefaultSuffix(match.captured(1));
    });
    return askForFile(dialog, question);
}

QString WidgetDesktop::chooseFolder(QWidget *parent, const FileQuestion &question)
{
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return askForFile(dialog, question);
}

QString WidgetDesktop::askForFile(QFileDialog &dialog, const FileQuestion &question)
{
    dialog.setObjectName(u"Dateidialog"_s);
    dialog.setWindowTitle(question.title);
    if (!question.filters.isEmpty())
        dialog.setNameFilters(question.filters.split(u";;"_s));
    const QString folder = question.folder.isEmpty() ? m_lastFolder : question.folder;
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    if (!question.name.isEmpty())
        dialog.selectFile(question.name);
    if (!runDialog(dialog) || dialog.selectedFiles().isEmpty())
        return {};
    m_lastFolder = dialog.directory().absolutePath();
    return dialog.selectedFiles().constFirst();
}

bool WidgetDesktop::runDialog(QDialog &dialog)
{
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint, anyWindowOnTop());
    const bool hourglass = m_hourglass;
    setPointer(Pointer::Default);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    setPointer(hourglass ? Pointer::Hourglass : Pointer::Default);
    return accepted;
}

} // namespace kalvenor::desktop
