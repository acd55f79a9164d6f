// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/catalogue.h"

namespace kalvenor::app {

/// Takes the language from the host's settings, whatever of the host can be opened; where no host is there to say it,
/// the system's: German, else English.
void speakAsHost(host::Host &host);

/// The system's, as long as no host is known.
language::CatalogueLanguage systemLanguage();

} // namespace kalvenor::app
