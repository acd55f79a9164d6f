// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/pageflow.h"

#include <vector>

namespace kalvenor::print {

/// The lines of a paragraph of several styles, at least one, between two places of the paper (twips). Space around and
/// keeping together are the caller's.
std::vector<Strip> richLines(const RichParagraph &paragraph, const std::vector<TextFace> &faces, double left,
                             double right);

} // namespace kalvenor::print
