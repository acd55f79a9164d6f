// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace kalvenor::app {

/// The bytes of a text that a command is given. Throws Error where the file cannot be read or is too large.
QByteArray readIntroduction(const QString &nativeFile);

} // namespace kalvenor::app
