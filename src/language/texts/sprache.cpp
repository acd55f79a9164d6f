// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/sprache.h"

#include "platform/basic/date.h"

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

const QString Missing = u"????"_s;

} // namespace

QLocale anzeigesprache(const host::Host &host)
{
    return host.Sprache.compare(u"Deutsch", Qt::CaseInsensitive) == 0 ? QLocale::German : QLocale::English;
}

void Sprachmodul::spracheoeffnen(const basic::WindowsPath &file)
{
    m_database = m_engine.openDatabase(m_host.native(file));
    m_languages = m_database->openTable(u"Languages"_s);
    m_languages->setIndex(u"Counter"_s);
}

CatalogueLanguage catalogueLanguage(const host::Host &host)
{
    return anzeigesprache(host).language() == QLocale::German ? CatalogueLanguage::German : CatalogueLanguage::English;
}

QVariant Sprachmodul::sprachtext(qint16 id)
{
    QVariant result = Missing;
    try {
        if (m_languages) {
            m_languages->seekEqual(id);
            if (!m_languages->noMatch())
                result = m_languages->value(m_host.Sprache);
        }
    } catch (const basic::Error &) {
        // A text that cannot be looked up never stops anything: it shows as four question marks.
    }
    if (result.isNull() || !result.toString().contains(u'#'))
        return result;
    return result.toString().remove(u"#PROGNAME#"_s).remove(u"#APPNAME#"_s);
}

QVariant Sprachmodul::shownText(qint16 id)
{
    const QVariant text = sprachtext(id);
    if (id < FirstOwnText || (!text.isNull() && text.toString() != Missing))
        return text;
    const QString own = ownText(id);
    return own.isNull() ? text : own;
}

QString Sprachmodul::ownText(qint16 id)
{
    if (m_fileLanguage != m_host.Sprache) {
        m_fileLanguage = m_host.Sprache;
        m_file = textsOfLanguage(m_fileLanguage);
    }
    const auto found = m_file.find(id);
    return found != m_file.end() ? found->second : wording(static_cast<Text>(id), catalogueLanguage(m_host));
}

QString dayInWords(qint64 dayNumber, CatalogueLanguage language)
{
    const QLocale locale(language == CatalogueLanguage::German ? QLocale::German : QLocale::English);
    return locale.toString(basic::calendarDate(dayNumber), wording(Text::LongDate, language));
}

QString Sprachmodul::dayInWords(qint64 dayNumber)
{
    return anzeigesprache(m_host).toString(basic::calendarDate(dayNumber), text(Text::LongDate));
}

void Sprachmodul::datenbankenschliessen(const QString &name)
{
    m_engine.close(); // the one workspace; a default one is never closed itself
    if (name.isEmpty())
        spracheoeffnen(m_host.Hostverzeichnis + u"\\language.mdb"_s);
}

} // namespace kalvenor::language
