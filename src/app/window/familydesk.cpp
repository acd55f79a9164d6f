// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/familydesk.h"

#include "app/start/databasefault.h"
#include "app/window/templatedesk.h"
#include "language/forms/form.h"
#include "language/progress/userwork.h"
#include <QFileInfo>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

FamilyDesk::FamilyDesk(data::Session &session, desktop::Work &work, TemplateDesk &templates, QObject *parent)
    : QObject(parent), m_session(session), m_work(work), m_templates(templates)
{
}

QString FamilyDesk::text(qint16 id, const QString &germanText) const
{
    return language::shownText(m_session.language, id, germanText);
}

void FamilyDesk::choose()
{
    if (!m_templates.mayDiscard())
        return;
    const host::Host &host = m_session.host;
    const QString file = host.desktop().openFileName(
        qobject_cast<QWidget *>(parent()), {.title = text(21214, u"Familiendatenbank öffnen"_s),
                                            .folder = QFileInfo(host.native(host.Familienpfad)).absolutePath(),
                                            .filters = text(21213, u"Familiendatenbanken (*.mdb)"_s)});
    if (!file.isEmpty())
        openFile(file);
}

bool FamilyDesk::openFile(const QString &nativeFile)
{
    const QString familienpfad = m_session.host.windows(nativeFile);
    const auto inPlainWords = [&](const basic::Error &error) {
        const QString plain = databaseFault(m_session, error, familienpfad);
        return plain == error.message() ? plain : plain + u"\n\n"_s + error.message();
    };
    if (!language::runAndTell(m_work, m_session.host, m_session.language,
                              text(20346, u"Die Datenbank wird gelesen ..."_s),
                              [&](const basic::Progress &) { m_session.exchangeDatabase(familienpfad); },
                              {.said = [this](const QString &end) { Q_EMIT said(end); },
                               .inPlainWords = inPlainWords,
                               .title = text(21214, u"Familiendatenbank öffnen"_s)}))
        return false;
    m_templates.startAfresh();
    Q_EMIT said(text(20313, u"Geöffnet: %1"_s).arg(nativeFile));
    return true;
}

} // namespace kalvenor::app
