// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/lists/listquery.h"
#include <array>
#include <QWidget>

class QBoxLayout;
class QToolButton;

namespace kalvenor::selection {

/// `RM`, `RMA`, `RM2`, `RM2A`: what moves persons between the lists. A column between lists side by side, a row between
/// lists one above the other; with texts where these fit.
class MoveButtons : public QWidget {
    Q_OBJECT
public:
    explicit MoveButtons(QWidget *parent = nullptr);

    QToolButton &one(PersonList from) { return *m_buttons[2 * place(from)]; }
    QToolButton &all(PersonList from) { return *m_buttons[2 * place(from) + 1]; }
    /// In the order in which Tab goes through them.
    const std::array<QToolButton *, 4> &buttons() const { return m_buttons; }

    /// One list above the other; `room` is the width that there is for the buttons.
    void arrange(bool stacked, int room);
    /// With the texts, with none, as a column.
    int widthWithTexts() const;
    int widthOfIcons() const;

Q_SIGNALS:
    void moveWanted(PersonList from, bool all);

private:
    static std::size_t place(PersonList list) { return static_cast<std::size_t>(list); }

    std::array<QToolButton *, 4> m_buttons; ///< RM, RMA, RM2, RM2A
    QBoxLayout *m_layout;
};

} // namespace kalvenor::selection
