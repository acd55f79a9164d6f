// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include <QDialog>

class QMainWindow;

namespace kalvenor::app {

/// All keys of a window, read from its actions: those of its menus, then those of its parts, each under its name.
class ShortcutWindow : public QDialog {
    Q_OBJECT
public:
    ShortcutWindow(data::Session &session, QMainWindow &window);
};

} // namespace kalvenor::app
