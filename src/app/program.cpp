// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program.h"

#include "platform/basic/number.h"
#include <QGuiApplication>
#include <QWindow>

namespace kalvenor::app {

namespace {

constexpr qint16 TextFamilyDatabaseMissing = 100;

/// The active form, where there is a desktop at all.
QWindow *activeForm()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr ? QGuiApplication::focusWindow()
                                                                                    : nullptr;
}

qint16 shortHelp(const host::Host &host, const QString &settings, const QString &view)
{
    const QString text = host.inilesen(settings, view, QStringLiteral("Kurzhilfe"), QStringLiteral("1"));
    try {
        return toInteger16(leadingNumber(text));
    } catch (const Error &error) {
        throw Error(
            error.kind(), host.native(settings),
            QStringLiteral("The setting Kurzhilfe=%1 in section [%2] cannot be: %3.").arg(text, view, error.text()));
    }
}

} // namespace

bool Program::Main(const ShowMainWindow &showMainWindow)
{
    host.Hostverzeichnis = host::uebergeordnetesverzeichnis(host.programFolder());
    const QString settings = host.hostSettingsFile();
    const QString view = QStringLiteral("Ansicht");
    host.Sprache = host.inilesen(settings, view, QStringLiteral("Sprache"), QStringLiteral("Deutsch"));
    host.Kurzhilfe = shortHelp(host, settings, view);
    language.spracheoeffnen(host.Hostverzeichnis + QStringLiteral("\\ADD-IN-LANGUAGE.MDB"));
    host.Familienpfad = host.inilesen(settings, QStringLiteral("QV-Files"), QStringLiteral("0"), {});
    if (!chosenFamily.isEmpty())
        host.Familienpfad = chosenFamily;
    if (host.Familienpfad.isEmpty() || host.dir(host.Familienpfad).isEmpty()) {
        // AddInonTop is read later, so this changes nothing yet.
        host.fensteroben(activeForm(), 0, false);
        host.desktop().messageBox(language.text(TextFamilyDatabaseMissing), MessageCritical, {});
        return false;
    }
    databases.datenbankoeffnen(host.Familienpfad);
    host.AddInonTop = host.inilesen(settings, view, QStringLiteral("AddInonTop"), QStringLiteral("1"));
    if (showMainWindow) {
        try {
            host.Hauptform = showMainWindow();
        } catch (const Error &) {
            // As decided for this one step: a main window that cannot be made or shown stops nothing here.
        }
    }
    return true;
}

} // namespace kalvenor::app
