// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include <QString>
#include <vector>

// A window as the translation sees it: texts with identifiers, whatever draws them.
namespace kalvenor::language {

/// A control or an item of one: a tab, a tool bar button or an entry of its menu, a panel, a column heading.
struct FormPart {
    QString typeName = {}; ///< of a control: "Label", "Menu", "Toolbar", …
    QString tag = {};      ///< the caption's identifier in digits
    QString caption = {};  ///< at design time the identifier and the German text: "1204Liste auf neuer Seite beginnen"
    QString tooltip = {};  ///< at design time the identifier alone
    std::vector<FormPart> items = {};
};

struct Form {
    QString name = {};
    QString tag = {}; ///< the title's identifier in digits
    QString title = {};
    desktop::Pointer pointer = desktop::Pointer::Default;
    std::vector<FormPart> controls = {};
};

/// Translates title, captions and tooltips by the rules of each control's type. What has no readable identifier stays
/// as it is; tooltips are emptied unless short help is switched on. The pointer is left an hourglass. Never fails.
void formuebersetzen(Form &form, Sprachmodul &texts, const host::Host &host);

} // namespace kalvenor::language
