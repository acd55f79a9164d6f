// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"

namespace kalvenor::selection {

/// What the person table says of a person, a line each: name, sex, dates, parents; what is not known has no line. As
/// HTML for a tooltip. Empty where the person is gone.
QString personCard(data::Session &session, qint32 counter);

} // namespace kalvenor::selection
