// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

#include <algorithm>
#include <vector>

namespace kalvenor::language {

std::span<const CatalogueText> catalogue()
{
    static const std::vector<CatalogueText> all = [] {
        std::vector<CatalogueText> texts;
        for (const auto group :
             {hostTexts(), windowTexts(), statisticsTexts(), printTexts(), messageTexts(), faultTexts(), damageTexts()})
            texts.insert(texts.end(), group.begin(), group.end());
        std::ranges::sort(texts, {}, &CatalogueText::id);
        return texts;
    }();
    return all;
}

QString wording(Text id, CatalogueLanguage language)
{
    const auto texts = catalogue();
    const auto found = std::ranges::lower_bound(texts, id, {}, &CatalogueText::id);
    if (found == texts.end() || found->id != id)
        return {};
    return QString::fromUtf16(language == CatalogueLanguage::German ? found->deutsch : found->english);
}

} // namespace kalvenor::language
