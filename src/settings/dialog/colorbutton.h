// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPushButton>

namespace kalvenor::desktop {
class Desktop;
}

namespace kalvenor::settings {

/// A button that shows a colour and asks for another.
class ColorButton : public QPushButton {
    Q_OBJECT
public:
    ColorButton(desktop::Desktop &desktop, QWidget *parent);

    const QColor &color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    /// By the user.
    void picked(const QColor &color);

private:
    void ask();

    desktop::Desktop &m_desktop;
    QColor m_color;
};

} // namespace kalvenor::settings
