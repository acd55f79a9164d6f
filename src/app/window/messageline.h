// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class QAction;
class QToolButton;

namespace kalvenor::desktop {
class ElidedLabel;
}

namespace kalvenor::app {

/// What was done or goes on, in the status bar, and a button beside it that takes it back where that is possible.
class MessageLine : public QWidget {
    Q_OBJECT
public:
    explicit MessageLine(QAction &takeBack, QWidget *parent = nullptr);

    /// Stays for these milliseconds, or until another message comes.
    void say(const QString &what, int milliseconds, bool canTakeBack = false);
    /// What goes on, in the message's place until it is over; empty: it is.
    void sayRunning(const QString &what);
    QString text() const;
    /// The room that the message would like to have.
    int wantedWidth() const;

Q_SIGNALS:
    void changed();

private:
    void showText();

    desktop::ElidedLabel *m_label;
    QToolButton *m_takeBack;
    QTimer m_end;
    QString m_said;
    QString m_running;
    bool m_canTakeBack = false;
};

} // namespace kalvenor::app
