// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/desktop/desktop.h"
#include <functional>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>

namespace kalvenor::desktop {

/// Long work on the one thread of the windows, one at a time. While it runs the pointer is the hourglass and windows
/// are painted, but mouse and keys reach only what was let through; Escape cancels.
class Work : public QObject {
    Q_OBJECT
public:
    explicit Work(Desktop &desktop, QObject *parent = nullptr);

    using Task = std::function<void(const basic::Progress &progress)>;
    /// What the user can do meanwhile: cancel, or also type where `letTypingThrough` says.
    enum class Input { CancelOnly, Typing };

    /// Carries the task out; `what` says in the user's words what goes on. False where other work is running: the task
    /// was not begun. What the task throws goes to the caller once the work has ended.
    bool run(const QString &what, const Task &task, Input input = Input::CancelOnly);
    bool isRunning() const { return m_running; }
    /// Names the step that the running work has come to. It is painted before the step begins.
    void announce(const QString &what);
    /// Asks the running work for an end at its next safe point.
    void cancel() { m_cancelled = true; }

    void letThrough(QObject *cancelButton) { m_cancelInput.append(cancelButton); }
    void letTypingThrough(QObject *entry) { m_typingInput.append(entry); }

Q_SIGNALS:
    void began(const QString &what);
    void announced(const QString &what);
    /// Only for work that takes longer than a moment, some times a second. `total` 0: unknown.
    void advanced(qint64 done, qint64 total);
    void ended();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool advance(qint64 done, qint64 total);
    bool reaches(const QObject *watched) const;

    Desktop &m_desktop;
    QList<QPointer<QObject>> m_cancelInput;
    QList<QPointer<QObject>> m_typingInput;
    QElapsedTimer m_clock;
    qint64 m_nextLook = 0; ///< in milliseconds of the clock
    Input m_input = Input::CancelOnly;
    bool m_running = false;
    bool m_cancelled = false;
};

} // namespace kalvenor::desktop
