// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/desktop.h"

class QFileDialog;
class QMessageBox;

namespace kalvenor::desktop {

/// The desktop of a program with windows. A QApplication must exist.
class WidgetDesktop : public Desktop {
public:
    /// A box over the window in front. While it is open the pointer is the usual one.
    int messageBox(const QString &text, int style, const QString &title) override;
    /// Asks with the verbs on the buttons.
    int ask(const Question &question) override;
    void runtimeError(const QString &title, const QString &message) override;
    /// The pointer over all windows. `Custom` shows none of its own here: windows set it where they need it.
    void setPointer(Pointer pointer) override;
    QString openFileName(QWidget *parent, const FileQuestion &question) override;
    QString saveFileName(QWidget *parent, const FileQuestion &question) override;
    QString chooseFolder(QWidget *parent, const FileQuestion &question) override;
    /// Modal to its parent, above windows that stay on top, with the usual pointer.
    bool runDialog(QDialog &dialog) override;

private:
    int showBox(QMessageBox &box);
    QString askForFile(QFileDialog &dialog, const FileQuestion &question);

    bool m_hourglass = false;
    QString m_lastFolder; ///< where the last file dialog ended
};

} // namespace kalvenor::desktop
