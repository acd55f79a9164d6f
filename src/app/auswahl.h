// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/program.h"
#include "platform/desktop/work.h"
#include "selection/selectioncontroller.h"
#include <QMainWindow>

class QLabel;
class QSplitter;

namespace kalvenor::selection {
class SelectionPanel;
}

namespace kalvenor::app {

struct MainActions;

/// The main window: a frame around the panels, with menus, tool bar and status bar. Closing it closes all databases;
/// while work is running, the work is cancelled first.
class Auswahl : public QMainWindow {
    Q_OBJECT
public:
    /// Loads the lists. Errors are shown, the window is there in any case.
    explicit Auswahl(Program &program, QWidget *parent = nullptr);
    ~Auswahl() override;

    selection::SelectionController &controller() { return m_controller; }
    selection::SelectionPanel &selectionPanel() { return *m_selection; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeStatusBar();
    void connectActions();
    void updateState();
    void say(const QString &text, int milliseconds);
    void showShortcuts();
    QString text(qint16 id, const QString &germanText);

    Program &m_program;
    Work m_work;
    selection::SelectionController m_controller;
    selection::SelectionPanel *m_selection;
    QSplitter *m_splitter;
    std::unique_ptr<MainActions> m_actions;
    QLabel *m_database, *m_damage, *m_persons, *m_marked;
    QString m_progressText; ///< in the status bar while work runs
    bool m_closing = false; ///< as soon as the running work has ended
    bool m_closed = false;
    bool m_shown = false;
};

} // namespace kalvenor::app
