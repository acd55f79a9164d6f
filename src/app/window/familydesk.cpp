// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/familydesk.h"

#include "app/start/databasefault.h"
#include "app/window/templatedesk.h"
#include "language/progress/userwork.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include <QFileInfo>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

FamilyDesk::FamilyDesk(data::Session &session, desktop::Work &work, TemplateDesk &templates, QObject *parent)
    : QObject(parent), m_session(session), m_work(work), m_templates(templates)
{
}

void FamilyDesk::choose()
{
    if (!m_templates.mayDiscard())
        return;
    const host::Host &host = m_session.host;
    const QString file = host.desktop().openFileName(
        qobject_cast<QWidget *>(parent()), {.title = m_session.language.text(Text::OpenFamily),
                                            .folder = QFileInfo(host.native(host.Familienpfad)).absolutePath(),
                                            .filters = m_session.language.text(Text::FamilyDatabases)});
    if (!file.isEmpty())
        openFile(file);
}

bool FamilyDesk::openFile(const QString &nativeFile)
{
    const basic::WindowsPath familienpfad = m_session.host.windows(nativeFile);
    const auto inPlainWords = [&](const basic::Error &error) {
        const QString plain = databaseFault(m_session, error, familienpfad);
        const QString exact = language::errorMessage(m_session.language, error);
        return plain == exact ? plain : plain + u"\n\n"_s + exact;
    };
    if (!language::runAndTell(m_work, m_session.host, m_session.language,
                              m_session.language.text(Text::ReadingDatabase),
                              [&](const basic::Progress &) { m_session.exchangeDatabase(familienpfad); },
                              {.said = [this](const QString &end) { Q_EMIT said(end); },
                               .inPlainWords = inPlainWords,
                               .title = m_session.language.text(Text::OpenFamily)}))
        return false;
    m_templates.startAfresh();
    Q_EMIT said(m_session.language.text(Text::Opened).arg(nativeFile));
    return true;
}

} // namespace kalvenor::app
