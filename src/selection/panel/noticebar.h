// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include <QFrame>

class QLabel;
class QPushButton;

namespace kalvenor::selection {

/// A bar that says what is the matter and offers the way on; hidden at first.
class NoticeBar : public QFrame {
    Q_OBJECT
public:
    NoticeBar(const char *name, language::Text notice, const char *buttonName, language::Text wayOn, QWidget *parent);

    void setText(const QString &text);

Q_SIGNALS:
    void wayOnWanted();

private:
    QLabel *m_label;
};

} // namespace kalvenor::selection
