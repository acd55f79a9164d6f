// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"

class QCheckBox;
class QWidget;

namespace kalvenor::statistics {

/// The box `geschlechtalter`(index), checked at first. `caption` is a design-time text.
QCheckBox *makeSexBox(QWidget *parent, int index, language::Text caption);

} // namespace kalvenor::statistics
