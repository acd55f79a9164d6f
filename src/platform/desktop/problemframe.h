// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace kalvenor::desktop {

/// A red frame around an entry field, shown while what stands there is wrong. It takes no room and no clicks; why it is
/// there is told beside the field, and to a screen reader as the field's description.
class ProblemFrame : public QWidget {
    Q_OBJECT
public:
    explicit ProblemFrame(QWidget &field);

    /// Empty: nothing is wrong.
    void setProblem(const QString &why);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// Says below a field, in the same red, what is wrong; hidden while nothing is.
class ProblemLabel : public QLabel {
    Q_OBJECT
public:
    explicit ProblemLabel(QWidget *parent);

    void setProblem(const QString &why);
};

} // namespace kalvenor::desktop
