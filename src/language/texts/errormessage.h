// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/catalogue.h"
#include "language/texts/sprache.h"
#include "platform/basic/error.h"
#include "platform/desktop/desktop.h"
#include "platform/jet/reader/damage.h"

namespace kalvenor::language {

/// What is said of an error in the host's language, without its place.
QString errorSentence(Sprachmodul &texts, const basic::Error &error);
/// An argument of one, such as the reason why a file cannot be used.
QString inWords(Sprachmodul &texts, const basic::Argument &argument);
/// The same as errorSentence behind the place in words: "C:/QV/a.kvl, line 3: …".
QString errorMessage(Sprachmodul &texts, const basic::Error &error);
/// The same in the catalogue's words, where no host's database is at hand.
QString errorMessage(CatalogueLanguage language, const basic::Error &error);

/// The report of an error that nothing caught: its number as users of the classic runtime know it, and its message.
void reportError(desktop::Desktop &desktop, Sprachmodul &texts, const basic::Error &error);
/// Damage of one kind in a line: where it is and what, or how often and the first places.
QString damageLine(Sprachmodul &texts, const jet::Damage &damage);
QString damageLine(CatalogueLanguage language, const jet::Damage &damage);

} // namespace kalvenor::language
