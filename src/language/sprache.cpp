// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/sprache.h"

namespace kalvenor::language {

void Sprachmodul::spracheoeffnen(const QString &file)
{
    m_database = m_engine.workspace(0).openDatabase(m_host.native(file));
    m_languages = m_database->openTable(QStringLiteral("Languages"));
    m_languages->setIndex(QStringLiteral("Counter"));
}

QVariant Sprachmodul::sprachtext(qint16 id)
{
    QVariant result = QStringLiteral("????");
    try {
        if (m_languages) {
            m_languages->seekEqual(id);
            if (!m_languages->noMatch())
                result = m_languages->value(m_host.Sprache);
        }
        if (!m_languages && m_spareTexts) {
            const QVariant spare = m_spareTexts(id);
            if (!spare.isNull())
                result = spare;
        }
    } catch (const Error &) {
        // A text that cannot be looked up never stops anything: it shows as four question marks.
    }
    if (result.isNull() || !result.toString().contains(u'#'))
        return result;
    return result.toString().remove(QStringLiteral("#PROGNAME#")).remove(QStringLiteral("#APPNAME#"));
}

void Sprachmodul::datenbankenschliessen(const QString &name)
{
    for (int i = m_engine.workspaceCount() - 1; i >= 0; --i)
        m_engine.closeWorkspace(i);
    if (name.isEmpty())
        spracheoeffnen(m_host.Hostverzeichnis + QStringLiteral("\\language.mdb"));
}

} // namespace kalvenor::language
