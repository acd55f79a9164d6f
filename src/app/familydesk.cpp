// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/familydesk.h"

#include "app/databasefault.h"
#include "app/templatedesk.h"
#include "language/form.h"
#include "selection/databaseswitch.h"
#include <new>
#include <QFileInfo>
#include <QWidget>

namespace kalvenor::app {

FamilyDesk::FamilyDesk(const Parts &parts, QObject *parent) : QObject(parent), m_parts(parts)
{
}

QString FamilyDesk::text(qint16 id, const QString &germanText) const
{
    return language::shownText(m_parts.program.language, id, germanText);
}

void FamilyDesk::choose()
{
    if (!m_parts.templates.mayDiscard())
        return;
    const host::Host &host = m_parts.program.host;
    const QString file = host.desktop().openFileName(
        qobject_cast<QWidget *>(parent()), {.title = text(21214, QStringLiteral("Familiendatenbank öffnen")),
                                            .folder = QFileInfo(host.native(host.Familienpfad)).absolutePath(),
                                            .filters = text(21213, QStringLiteral("Familiendatenbanken (*.mdb)"))});
    if (!file.isEmpty())
        openFile(file);
}

void FamilyDesk::goOver(const QString &familienpfad)
{
    selection::DatabaseSwitch databaseSwitch(m_parts.templates.databaseServices());
    try {
        databaseSwitch.goOver(familienpfad);
    } catch (const Error &error) {
        databaseSwitch.goBack(error);
    } catch (const std::bad_alloc &) {
        databaseSwitch.goBack(Error(ErrorKind::Overflow, {}, QStringLiteral("There is not enough memory for this.")));
    }
}

bool FamilyDesk::openFile(const QString &nativeFile)
{
    Program &program = m_parts.program;
    const QString familienpfad = program.host.windows(nativeFile);
    QString failure;
    bool done = false;
    try {
        if (!m_parts.work.run(text(20346, QStringLiteral("Die Datenbank wird gelesen ...")), [&](const Progress &) {
                goOver(familienpfad);
                done = true;
            }))
            return false;
    } catch (const Error &error) {
        const QString plain = databaseFault(program, error, familienpfad);
        failure = plain == error.message() ? plain : plain + QStringLiteral("\n\n") + error.message();
    }
    m_parts.lists.afterOpening(done, {}, true);
    m_parts.statistics.forget();
    if (done) {
        m_parts.templates.startAfresh();
        Q_EMIT said(text(20313, QStringLiteral("Geöffnet: %1")).arg(nativeFile));
    } else {
        program.host.desktop().messageBox(failure, MessageCritical,
                                          text(21214, QStringLiteral("Familiendatenbank öffnen")));
    }
    return done;
}

} // namespace kalvenor::app
