// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPushButton>

class QLineEdit;

namespace kalvenor::settings {

/// A button that shows a colour and opens a palette to pick another, or to type one as #rrggbb.
class ColorButton : public QPushButton {
    Q_OBJECT
public:
    explicit ColorButton(QWidget *parent = nullptr);

    const QColor &color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    /// By the user.
    void picked(const QColor &color);

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makePalette();
    void pick(const QColor &color);
    void showColor();

    QColor m_color = Qt::black;
    QLineEdit *m_entry = nullptr;
};

} // namespace kalvenor::settings
