// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <QString>

class QWidget;
class QDialog;
class QWindow;

namespace kalvenor::desktop {

/// Mouse pointers by the numbers of the classic runtime.
enum class Pointer { Default = 0, Hourglass = 11, Custom = 99 };

/// Message box styles and results by the numbers of the classic runtime.
inline constexpr int MessageCritical = 16;
inline constexpr int MessageQuestion = 32;
inline constexpr int ButtonsOkCancel = 1;
inline constexpr int ButtonsYesNoCancel = 3;
inline constexpr int ButtonsYesNo = 4;
inline constexpr int ResultOk = 1;
inline constexpr int ResultCancel = 2;
inline constexpr int ResultYes = 6;
inline constexpr int ResultNo = 7;

/// Where a window is put in the stack.
enum class StackPlace { TopMost, NotTopMost, Top };

/// A question that is answered by verbs. Cancel is always a third answer.
struct Question {
    QString text;
    QString title;
    QString yes;     ///< on the button that answers ResultYes
    QString no = {}; ///< and ResultNo; empty: no such button
};

/// What a file dialog asks.
struct FileQuestion {
    QString title;
    QString folder = {};  ///< where it opens, a native path; empty: where the last one ended
    QString filters = {}; ///< "RTF texts (*.rtf);;All files (*)", empty: all files
    QString suffix = {};  ///< without a dot, given to a name to save that has none
    QString name = {};    ///< proposed, without a folder
};

/// The desktop as far as the program speaks to it: one seam, so that a terminal or a test can stand in its place.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a message and waits for the answer (a result number, 1 = OK). The style is the sum of buttons and icon; a
    /// closed box answers Cancel where there is such a button, else OK or No.
    virtual int messageBox(const QString &text, int style, const QString &title) = 0;
    /// Asks and waits for the answer: ResultYes, ResultNo or ResultCancel, which closing means, too. A desktop without
    /// such boxes asks by messageBox().
    virtual int ask(const Question &question);
    /// The report of an error that nothing in the program caught; the program ends after it. The title holds its
    /// number.
    virtual void runtimeError(const QString &title, const QString &message) = 0;
    virtual void setPointer(Pointer pointer) = 0;
    /// Puts the window in its place without moving or resizing it. False where there is no window or it was refused.
    virtual bool setStackPlace(QWindow *window, StackPlace place, bool activate);
    /// Lets the user choose an existing file. The native path, empty where they gave up or nobody can be asked.
    virtual QString openFileName(QWidget *parent, const FileQuestion &question);
    /// Lets the user choose a file to write; an existing one only after they agreed to replace it. As above.
    virtual QString saveFileName(QWidget *parent, const FileQuestion &question);
    /// Lets the user choose an existing folder; filters, suffix and name of the question do not count. As above.
    virtual QString chooseFolder(QWidget *parent, const FileQuestion &question);
    /// Shows a dialog and waits until it is closed. True where the user accepted; false where nobody can be asked.
    virtual bool runDialog(QDialog &dialog);
};

/// The desktop of a command: messages go to stderr, answers are OK.
class TerminalDesktop : public Desktop {
public:
    int messageBox(const QString &text, int style, const QString &title) override;
    void runtimeError(const QString &title, const QString &message) override;
    void setPointer(Pointer) override {}
};

} // namespace kalvenor::desktop
