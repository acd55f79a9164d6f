// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/hostlanguage.h"

#include "app/start/lastfolder.h"
#include <QLocale>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

void speakAsHost(host::Host &host)
{
    host.Hostverzeichnis = host::uebergeordnetesverzeichnis(host.programFolder());
    if (hasHost(host.native(host.programFolder())))
        host.Sprache = host.inilesen(host.hostSettingsFile(), u"Ansicht"_s, u"Sprache"_s, u"Deutsch"_s);
    else
        host.Sprache = systemLanguage() == language::CatalogueLanguage::German ? u"Deutsch"_s : u"English"_s;
}

language::CatalogueLanguage systemLanguage()
{
    return QLocale::system().language() == QLocale::German ? language::CatalogueLanguage::German
                                                           : language::CatalogueLanguage::English;
}

} // namespace kalvenor::app
