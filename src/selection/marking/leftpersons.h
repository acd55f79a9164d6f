// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "language/texts/sprache.h"
#include <span>

namespace kalvenor::selection {

/// What is to be told of persons whose mark could not be changed: a sentence a reason, with their number and the names
/// of the first ones. Empty where there are none.
QString leftPersons(language::Sprachmodul &texts, data::Datenbankmodul &databases, std::span<const dao::LeftRow> left);

} // namespace kalvenor::selection
