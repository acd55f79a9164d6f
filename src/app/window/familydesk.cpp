// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/familydesk.h"

#include "app/start/databasefault.h"
#include "app/window/templatedesk.h"
#include "language/forms/form.h"
#include "selection/templates/databaseswitch.h"
#include <new>
#include <QFileInfo>
#include <QWidget>

using namespace Qt::StringLiterals;

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
        qobject_cast<QWidget *>(parent()), {.title = text(21214, u"Familiendatenbank öffnen"_s),
                                            .folder = QFileInfo(host.native(host.Familienpfad)).absolutePath(),
                                            .filters = text(21213, u"Familiendatenbanken (*.mdb)"_s)});
    if (!file.isEmpty())
        openFile(file);
}

void FamilyDesk::goOver(const QString &familienpfad)
{
    selection::DatabaseSwitch databaseSwitch(m_parts.templates.databaseServices());
    try {
        databaseSwitch.goOver(familienpfad);
    } catch (const basic::Error &error) {
        databaseSwitch.goBack(error);
    } catch (const std::bad_alloc &) {
        databaseSwitch.goBack(basic::Error(basic::ErrorKind::Overflow, {}, u"There is not enough memory for this."_s));
    }
}

bool FamilyDesk::openFile(const QString &nativeFile)
{
    Program &program = m_parts.program;
    const QString familienpfad = program.host.windows(nativeFile);
    QString failure;
    bool done = false;
    try {
        if (!m_parts.work.run(text(20346, u"Die Datenbank wird gelesen ..."_s), [&](const basic::Progress &) {
                goOver(familienpfad);
                done = true;
            }))
            return false;
    } catch (const basic::Error &error) {
        const QString plain = databaseFault(program, error, familienpfad);
        failure = plain == error.message() ? plain : plain + u"\n\n"_s + error.message();
    }
    m_parts.lists.afterOpening(done, {}, true);
    m_parts.statistics.forget();
    if (done) {
        m_parts.templates.startAfresh();
        Q_EMIT said(text(20313, u"Geöffnet: %1"_s).arg(nativeFile));
    } else {
        program.host.desktop().messageBox(failure, desktop::MessageCritical,
                                          text(21214, u"Familiendatenbank öffnen"_s));
    }
    return done;
}

} // namespace kalvenor::app
