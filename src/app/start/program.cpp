// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/program.h"

#include "platform/basic/number.h"
#include <QGuiApplication>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

/// The active form, where there is a desktop at all.
QWindow *activeForm()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr ? QGuiApplication::focusWindow()
                                                                                    : nullptr;
}

qint16 shortHelp(const host::Host &host, const basic::WindowsPath &settings, const QString &view)
{
    const QString text = host.inilesen(settings, view, u"Kurzhilfe"_s, u"1"_s);
    try {
        return basic::toInteger16(basic::leadingNumber(text));
    } catch (const basic::Error &) {
        throw basic::Error(basic::Fault::SettingOutOfRange, {.file = host.native(settings)},
                           {u"Kurzhilfe"_s, text, view});
    }
}

} // namespace

bool Program::Main(const ShowMainWindow &showMainWindow)
{
    host.Hostverzeichnis = host::uebergeordnetesverzeichnis(host.programFolder());
    const basic::WindowsPath settings = host.hostSettingsFile();
    const QString view = u"Ansicht"_s;
    host.Sprache = host.inilesen(settings, view, u"Sprache"_s, u"Deutsch"_s);
    host.Kurzhilfe = shortHelp(host, settings, view);
    language.spracheoeffnen(host.Hostverzeichnis + u"\\ADD-IN-LANGUAGE.MDB"_s);
    host.Familienpfad = host.readPath(settings, u"QV-Files"_s, u"0"_s, {});
    if (!chosenFamily.isEmpty())
        host.Familienpfad = chosenFamily;
    if (host.Familienpfad.isEmpty() || host.dir(host.Familienpfad).isEmpty()) {
        // AddInonTop is read later, so this changes nothing yet.
        host.fensteroben(activeForm(), 0, false);
        host.desktop().messageBox(language.text(Text::FamilyDatabaseMissing), desktop::MessageCritical, {});
        return false;
    }
    databases.datenbankoeffnen(host.Familienpfad);
    host.AddInonTop = host.inilesen(settings, view, u"AddInonTop"_s, u"1"_s);
    if (showMainWindow) {
        try {
            host.Hauptform = showMainWindow();
        } catch (const basic::Error &) {
            // As decided for this one step: a main window that cannot be made or shown stops nothing here.
        }
    }
    return true;
}

} // namespace kalvenor::app
