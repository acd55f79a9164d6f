// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QCheckBox;
class QWidget;

namespace kalvenor::statistics {

/// The box `geschlechtalter`(index), checked at first. `caption` is a design-time text in UTF-8.
QCheckBox *makeSexBox(QWidget *parent, int index, const char *caption);

} // namespace kalvenor::statistics
