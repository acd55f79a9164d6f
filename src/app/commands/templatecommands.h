// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/commands/statistikwords.h"
#include <QString>

namespace kalvenor::app {

// `template save`, `open` and `reset`. Files are native paths. Each returns the exit code; errors of the engine go to
// the caller.

int runTemplateSave(const basic::WindowsPath &programFolder, const QString &file, const StatistikWords &words);
/// `here`: where the template's database does not exist, the host's is used.
int runTemplateOpen(const basic::WindowsPath &programFolder, const QString &file, bool here);
/// Without a file prints what the options would be.
int runTemplateReset(const basic::WindowsPath &programFolder, const QString &file);

} // namespace kalvenor::app
