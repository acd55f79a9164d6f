// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"

#include <vector>

class QTextDocument;

namespace kalvenor::print {

/// The paragraphs of a text with fonts, colours, alignment, indents and list signs; its styles go into `document`, to
/// which the caller adds the blocks. A pixel of the text is 15 twips (96 to the inch). Pictures and frames of tables
/// are left out, what stands in them comes in order.
std::vector<Block> richTextBlocks(const QTextDocument &text, PrintDocument &document);

} // namespace kalvenor::print
