// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include <functional>
#include <QWidget>

class QLabel;
class QPushButton;
class QStackedLayout;

namespace kalvenor::statistics {

/// Stands in the place of a view that has nothing to show: what is missing, and a button that leads on.
class EmptyState : public QWidget {
    Q_OBJECT
public:
    /// The widget that holds the view and its stand-in, to be put into a layout.
    static EmptyState *standIn(QWidget *view, language::Sprachmodul &texts);

    /// Puts the stand-in in the view's place. `way` is done when the button is pressed.
    void tell(language::Text missing, language::Text wayCaption, std::function<void()> way);
    void showView();
    QWidget *frame() const { return parentWidget(); }

private:
    EmptyState(QWidget *view, language::Sprachmodul &texts, QWidget *frame);

    language::Sprachmodul &m_texts;
    QStackedLayout *m_stack;
    QLabel *m_missing;
    QPushButton *m_way;
    std::function<void()> m_onWay;
};

} // namespace kalvenor::statistics
