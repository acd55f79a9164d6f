// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/start/program.h"
#include "platform/desktop/work.h"
#include <functional>
#include <memory>
#include <optional>
#include <QDialog>

class QLabel;
class QPushButton;
class QVBoxLayout;

// What a user meets where the program cannot start: what is missing or wrong, and the ways on from there.
namespace kalvenor::app {

/// Where a start takes things from.
struct StartPlace {
    basic::WindowsPath programFolder;
    basic::WindowsPath family = {}; ///< for this run; empty: the one that the host names
};

/// Why a start ended before there was a window.
struct StartProblem {
    QString text = {};
    QString details = {};            ///< the technical reason, may be empty
    bool noHost = false;             ///< nothing of a host lies above the program's folder; no text then
    bool anotherFamilyHelps = false; ///< all else is there
};

/// `error` is what start-up threw; nothing: it found no family database.
StartProblem startProblem(Program &program, const std::optional<basic::Error> &error);

/// A welcome that says what the program does, or what the problem is; then the hosts used last and other ways on. Each
/// button asks for what it needs and accepts the dialog when that leads on; what goes wrong there takes the place of
/// the problem's text.
class FirstRun : public QDialog {
    Q_OBJECT
public:
    FirstRun(Program &program, const StartProblem &problem, QWidget *parent = nullptr);

    /// Where to start now, once the dialog was accepted.
    const StartPlace &place() const { return m_place; }

public Q_SLOTS:
    /// Cancels running work first.
    void reject() override;

private:
    void build(const StartProblem &problem);
    QLayout *makeWelcome();
    void addRecentHosts(const StartProblem &problem);
    QPushButton *addWay(const char *name, const QString &description);
    void chooseHost();
    void chooseFamily();
    void makeDemonstration();
    void leadOn(const StartPlace &place);
    void showProblem(const QString &text, const QString &details);

    Program &m_program;
    desktop::Work m_work;
    StartPlace m_place;
    QLabel *m_problem, *m_details;
    QVBoxLayout *m_ways = nullptr;
};

/// Starts the program; while that fails it is told as start-up does and the user may choose another way. Nothing where
/// they gave up. `showMainWindow` is called as by Program::Main, `beforeQuestion` before the user is asked.
std::unique_ptr<Program> startProgram(desktop::Desktop &desktop, StartPlace place,
                                      const std::function<host::Hauptform *(Program &)> &showMainWindow,
                                      const std::function<void(const host::Host &)> &beforeQuestion = {});

} // namespace kalvenor::app
