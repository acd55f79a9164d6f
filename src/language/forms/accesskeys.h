// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTabWidget;
class QWidget;

namespace kalvenor::language {

/// The text as it reads, without the mark of its access key.
QString withoutAccessKey(const QString &text);

/// Gives each tab, button, box and labelled field of a translated dialog an access key of its own, as far as the
/// letters of its text allow; keys that texts have already are kept where nobody has them yet. What shows at the same
/// time never shares one; pages of tabs may. OK and Cancel go without: Return and Escape press them.
void giveAccessKeys(QWidget &dialog);

/// Ctrl+Tab turns the pages from anywhere in the window.
void turnByCtrlTab(QTabWidget &tabs);

} // namespace kalvenor::language
