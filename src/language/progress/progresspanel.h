// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/work.h"
#include <QWidget>

class QProgressBar;

namespace kalvenor::language {

/// How far long work is, with a button to cancel it; hidden unless work takes longer than a moment, and where another
/// window of the program is in front.
class ProgressPanel : public QWidget {
    Q_OBJECT
public:
    explicit ProgressPanel(desktop::Work &work, QWidget *parent = nullptr);

private:
    void advance(qint64 done, qint64 total);
    void showInFront();
    QProgressBar *m_bar;
};

} // namespace kalvenor::language
