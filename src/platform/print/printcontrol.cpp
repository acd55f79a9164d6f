// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/printcontrol.h"

#include <utility>

namespace kalvenor::print {

void PrintControl::setDocument(PrintDocument document, const basic::Progress &progress)
{
    auto layout = std::make_shared<const PageLayout>(document, progress);
    m_document = std::move(document);
    m_layout = std::move(layout);
    Q_EMIT changed();
}

} // namespace kalvenor::print
