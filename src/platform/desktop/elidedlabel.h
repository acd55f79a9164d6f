// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace kalvenor::desktop {

/// A line of plain text that takes the room there is and asks for none: what is too long is elided and can be read
/// whole in its tooltip. What it says never moves its neighbours.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    QString shown() const;
};

} // namespace kalvenor::desktop
