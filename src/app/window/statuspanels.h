// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "selection/panel/selectioncontroller.h"

class QLabel;
class QStatusBar;

namespace kalvenor::app {

class MessageLine;

/// The panels of the status bar: family database, whether it can be written or is damaged, persons, marked ones.
class StatusPanels {
public:
    /// Their texts are design-time texts.
    StatusPanels(QStatusBar &bar, MessageLine &message, desktop::Work &work);

    /// Everything anew.
    void update(data::Session &session, selection::SelectionController &lists);

private:
    QLabel *makePanel(const char *name, language::Text tooltip);
    void makeRoom();

    QStatusBar &m_bar;
    MessageLine &m_message;
    QLabel *m_database, *m_readOnly, *m_damage, *m_persons, *m_marked;
};

} // namespace kalvenor::app
