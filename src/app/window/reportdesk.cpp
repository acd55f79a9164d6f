// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/reportdesk.h"

#include "language/progress/userwork.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/chart/chartcontrol.h"
#include "selection/filter/filterpanel.h"
#include "selection/panel/selectioncontroller.h"
#include "selection/panel/selectionpanel.h"
#include "settings/dialog/initform.h"
#include "settings/preview/druckvorschau.h"
#include "statistics/panel/chartpanel.h"
#include "statistics/panel/statisticspanel.h"
#include <QApplication>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

/// Of a chart that was not laid out yet, because its tab is not shown.
constexpr QSize DefaultShape(160, 100);

} // namespace

ReportDesk::ReportDesk(data::Session &session, desktop::Work &work, selection::SelectionController &lists,
                       selection::SelectionPanel &selection, statistics::StatisticsController &statistics,
                       statistics::StatisticsPanel &panel)
    : m_session(session), m_work(work), m_lists(lists), m_selection(selection), m_statistics(statistics),
      m_panel(panel), m_bericht(session, m_print)
{
    connect(&session, &data::Session::databaseExchanged, this, &ReportDesk::forget);
}

ReportDesk::~ReportDesk() = default;

report::ReportContent ReportDesk::content() const
{
    const chart::ChartControl &chart = m_panel.chartPanel().chart();
    const QSize least = chart.minimumSizeHint();
    const bool laidOut = chart.width() >= least.width() && chart.height() >= least.height();
    const auto filtered = [this](selection::PersonList list) {
        return m_lists.isFiltered(list);
    };
    return {
        .results = m_statistics.results(),
        .statistik = m_panel.statistik(),
        .list = m_statistics.list(),
        .figures = m_statistics.figures(),
        .look = chart.look(),
        .chartShape = laidOut ? chart.size() : DefaultShape,
        .criteria = {.filter = m_selection.filterPanel().filter(),
                     .filtered = filtered(selection::PersonList::Unmarked) || filtered(selection::PersonList::Marked),
                     .relatives = m_selection.relatives()}};
}

std::optional<basic::WindowsPath> ReportDesk::auswahldrucken(const print::ExportTarget &target)
{
    if (m_work.isRunning() || !m_panel.computeOutdated())
        return std::nullopt;
    basic::WindowsPath written;
    const bool done = language::runAndTell(
        m_work, m_session.host, m_session.language, m_session.language.text(Text::ComposingPages),
        [&](const basic::Progress &progress) { written = m_bericht.auswahldrucken(content(), target, progress); },
        {.said = [this](const QString &end) { Q_EMIT said(end); },
         .inPlainWords =
             [this](const basic::Error &error) {
                 return m_session.language.text(Text::ReportFailed)
                     .arg(language::errorMessage(m_session.language, error));
             }});
    if (!done)
        return std::nullopt;
    if (target.format == print::ExportFormat::Pages)
        showPreview();
    return written;
}

void ReportDesk::showPreview()
{
    if (m_preview == nullptr)
        m_preview = std::make_unique<settings::Druckvorschau>(m_session.host, m_session.language, m_print, m_work);
    m_preview->show();
    m_preview->raise();
    m_preview->activateWindow();
}

bool ReportDesk::initspeichern()
{
    const bool done = m_bericht.initspeichern();
    if (!done)
        m_session.host.desktop().messageBox(m_session.language.text(Text::SettingsNotSaved)
                                                .arg(m_session.host.native(m_session.host.ownSettingsFile())),
                                            desktop::MessageCritical, m_session.language.text(Text::Error));
    return done;
}

bool ReportDesk::init()
{
    settings::Initform form(m_session.host, m_session.language, m_bericht.vorgaben, m_print.page,
                            QApplication::activeWindow());
    if (!m_session.host.desktop().runDialog(form))
        return false;
    m_panel.chartPanel().updateLook(); // the font factor may have changed
    if (m_preview != nullptr && m_preview->isVisible())
        auswahldrucken({});
    return true;
}

void ReportDesk::show(const QString &previewCommand)
{
    if (!m_work.isRunning() && m_panel.computeAll() && auswahldrucken({}))
        m_preview->toolbarbuttonclick(previewCommand);
}

bool ReportDesk::closePreview()
{
    return m_preview == nullptr || m_preview->isHidden() || m_preview->close();
}

/// The persons are others: the preview closes once the running work has ended.
void ReportDesk::forget()
{
    if (m_work.isRunning())
        connect(&m_work, &desktop::Work::ended, this, &ReportDesk::closePreview, Qt::SingleShotConnection);
    else
        closePreview();
}

} // namespace kalvenor::app
