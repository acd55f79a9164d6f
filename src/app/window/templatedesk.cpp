// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/templatedesk.h"

#include "language/progress/userwork.h"
#include "language/texts/sprache.h"
#include "platform/basic/codepage.h"
#include "selection/marking/leftpersons.h"
#include "selection/templates/vorlageoeffnen.h"
#include "selection/templates/vorlagespeichern.h"
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

constexpr qsizetype RecentTemplates = 8;
constexpr qsizetype LongestEntry = 255; // what a profile file gives back
const QString RecentSection = u"Vorlagen"_s;
const QString DefaultTemplate = u"\\Standart.kvl"_s;
const QString Suffix = u"kvl"_s;

} // namespace

TemplateDesk::TemplateDesk(data::Session &session, desktop::Work &work, selection::SelectionController &lists,
                           statistics::StatisticsPanel &panel, QObject *parent)
    : QObject(parent), m_session(session), m_work(work), m_lists(lists), m_panel(panel), m_saved(panel.statistik())
{
}

/// False where the task was not begun, failed or was cancelled; it was told.
bool TemplateDesk::perform(const QString &what, const desktop::Work::Task &task)
{
    return language::runAndTell(m_work, m_session.host, m_session.language, what, task,
                                {.said = [this](const QString &end) {
                                    Q_EMIT said(end);
                                }});
}

void TemplateDesk::show(const statistics::Statistik &statistik)
{
    m_panel.setStatistik(statistik);
    m_saved = m_panel.statistik();
}

bool TemplateDesk::isModified() const
{
    const statistics::Statistik now = m_panel.statistik();
    return now.titel != m_saved.titel || now.rtf != m_saved.rtf;
}

bool TemplateDesk::mayDiscard()
{
    if (!isModified())
        return true;
    language::Sprachmodul &texts = m_session.language;
    switch (m_session.host.desktop().ask({.text = texts.text(Text::SaveChangedTemplate),
                                          .title = texts.text(Text::ToolSave),
                                          .yes = texts.text(Text::SaveVerb),
                                          .no = texts.text(Text::DiscardVerb)})) {
    case desktop::ResultYes:
        return save();
    case desktop::ResultNo:
        return true;
    default:
        return false;
    }
}

// Opening

QString TemplateDesk::folder() const
{
    return m_current.isEmpty() ? m_session.host.native(m_session.host.programFolder())
                               : QFileInfo(m_current).absolutePath();
}

void TemplateDesk::open()
{
    if (!mayDiscard())
        return;
    const QString file = m_session.host.desktop().openFileName(qobject_cast<QWidget *>(parent()),
                                                               {.title = m_session.language.text(Text::OpenTemplate),
                                                                .folder = folder(),
                                                                .filters = m_session.language.text(Text::Templates)});
    if (!file.isEmpty())
        openFile(file);
}

bool TemplateDesk::openFile(const QString &nativeFile)
{
    if (m_work.isRunning()) // a file dropped meanwhile
        return false;
    selection::OpenedVorlage opened;
    const selection::UseOpenDatabase useOpenDatabase = [this](const basic::WindowsPath &database) {
        language::Sprachmodul &texts = m_session.language;
        return m_session.host.desktop().ask({.text = texts.text(Text::TemplateDatabaseMissing).arg(database.text()),
                                             .title = texts.text(Text::OpenTemplate),
                                             .yes = texts.text(Text::OpenWithThisDatabase)}) == desktop::ResultYes;
    };
    const bool done = perform(m_session.language.text(Text::OpeningTemplate), [&](const basic::Progress &progress) {
        opened = selection::vorlageoeffnen(m_session, basic::windowsPath(nativeFile), progress, useOpenDatabase);
    });
    if (!done) {
        m_lists.reloadLists(); // marks that could not be put back
        return false;
    }
    if (!opened.otherDatabase)
        m_lists.showTemplate(opened.changes);
    show(opened.vorlage.statistik);
    setCurrent(nativeFile);
    remember(nativeFile);
    m_panel.computeAll();
    Q_EMIT said(m_session.language.text(Text::Opened).arg(nativeFile));
    if (opened.vorlage.lastIsOpen)
        m_session.host.desktop().messageBox(
            m_session.language.text(Text::TemplateLastLineOpen).arg(opened.vorlage.counters.back()), 0,
            m_session.language.text(Text::OpenTemplate));
    if (!opened.missing.empty())
        m_session.host.desktop().messageBox(
            m_session.language.text(Text::TemplatePersonsMissing)
                .arg(language::anzeigesprache(m_session.host).toString(static_cast<qlonglong>(opened.missing.size()))),
            0, m_session.language.text(Text::OpenTemplate));
    if (!opened.left.empty())
        m_session.host.desktop().messageBox(
            selection::leftPersons(m_session.language, m_session.databases, opened.left), 0,
            m_session.language.text(Text::OpenTemplate));
    return true;
}

void TemplateDesk::openDefault()
{
    const host::Host &host = m_session.host;
    const basic::NativePath file = host.native(host.programFolder() + DefaultTemplate);
    selection::Vorlage vorlage;
    if (host.dir(host.programFolder() + DefaultTemplate).isEmpty() ||
        !perform(m_session.language.text(Text::OpeningTemplate),
                 [&](const basic::Progress &) { vorlage = selection::readVorlage(file); }))
        return;
    show(vorlage.statistik);
    setCurrent(file);
    m_panel.computeAll();
    Q_EMIT said(m_session.language.text(Text::Opened).arg(file));
}

// Saving

bool TemplateDesk::save()
{
    return m_current.isEmpty() ? saveAs() : write(m_current);
}

bool TemplateDesk::saveAs()
{
    const QString file = m_session.host.desktop().saveFileName(
        qobject_cast<QWidget *>(parent()),
        {.title = m_session.language.text(Text::SaveTemplateAs),
         .folder = folder(),
         .filters = m_session.language.text(Text::Templates),
         .suffix = Suffix,
         .name = m_current.isEmpty() ? m_session.language.text(Text::Untitled) + u'.' + Suffix
                                     : QFileInfo(m_current).fileName()});
    return !file.isEmpty() && write(file);
}

bool TemplateDesk::write(const QString &nativeFile)
{
    const statistics::Statistik now = m_panel.statistik();
    if (!perform(m_session.language.text(Text::PleaseWait), [&](const basic::Progress &progress) {
            selection::vorlagespeichern(m_session.host, m_session.databases, basic::windowsPath(nativeFile), now,
                                        progress);
        }))
        return false;
    m_saved = now;
    setCurrent(nativeFile);
    remember(nativeFile);
    Q_EMIT said(m_session.language.text(Text::Saved).arg(nativeFile));
    return true;
}

void TemplateDesk::reset()
{
    if (mayDiscard())
        clearTo(selection::vorlageclear(m_session.host));
}

void TemplateDesk::startAfresh()
{
    statistics::Statistik now = m_panel.statistik();
    now.titel.clear();
    now.rtf.clear();
    clearTo(now);
}

void TemplateDesk::clearTo(const statistics::Statistik &statistik)
{
    show(statistik);
    setCurrent({});
    m_panel.personsChanged();
}

// Current and recent templates

void TemplateDesk::setCurrent(const QString &nativeFile)
{
    m_current = nativeFile;
    Q_EMIT currentChanged();
}

QStringList TemplateDesk::recent() const
{
    const host::Host &host = m_session.host;
    QStringList files;
    for (qsizetype i = 1; i <= RecentTemplates; ++i) {
        const basic::WindowsPath file(
            basic::pathFromStored(host.inilesen(host.ownSettingsFile(), RecentSection, QString::number(i), {})));
        if (!file.isEmpty() && !host.dir(file).isEmpty())
            files << host.native(file);
    }
    return files;
}

void TemplateDesk::remember(const QString &nativeFile)
{
    const host::Host &host = m_session.host;
    QStringList files = recent();
    files.removeAll(nativeFile);
    const auto entry = [](const QString &file) {
        return basic::storedPath(basic::windowsPath(file).text());
    };
    if (entry(nativeFile).size() <= LongestEntry)
        files.prepend(nativeFile);
    std::vector<host::Host::Setting> entries;
    for (qsizetype i = 0; i < RecentTemplates; ++i)
        entries.push_back({RecentSection, QString::number(i + 1), entry(files.value(i))});
    host.inischreiben(host.ownSettingsFile(), entries);
}

} // namespace kalvenor::app
