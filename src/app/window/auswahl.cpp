// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/auswahl.h"

#include "app/window/helpwindow.h"
#include "app/window/mainactions.h"
#include "app/window/shortcutwindow.h"
#include "app/window/windowstate.h"
#include "language/about/infoform.h"
#include "language/forms/widgetform.h"
#include "language/progress/progresspanel.h"
#include "language/texts/errormessage.h"
#include "selection/filter/filterpanel.h"
#include "selection/panel/personlistpanel.h"
#include "selection/panel/selectionpanel.h"
#include "statistics/panel/statisticspanel.h"
#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

using selection::PersonList;

namespace {

constexpr int SayMs = 8000;
constexpr QSize FirstSize(80, 46); ///< in lines of text, so that names have room in any font
constexpr int ListsShare = 52;     ///< per cent of the width
constexpr int StackedShare = 42;
const QString ListsKey = u"Listen"_s;
const QString PanelsKey = u"Teiler"_s;

} // namespace

Auswahl::Auswahl(data::Session &session, QWidget *parent)
    : QMainWindow(parent), m_session(session), m_work(session.host.desktop()), m_controller(session, m_work),
      m_statistics(session, m_work), m_selection(new selection::SelectionPanel(m_controller, this)),
      m_statisticsPanel(new statistics::StatisticsPanel(m_statistics, this)),
      m_templates(session, m_work, m_controller, *m_statisticsPanel, this),
      m_family(session, m_work, m_templates, this),
      m_report(session, m_work, m_controller, *m_selection, m_statistics, *m_statisticsPanel),
      m_splitter(new QSplitter(this)), m_actions(std::make_unique<MainActions>(*this)),
      m_message(new MessageLine(*m_actions->undo, this)), m_panels(*statusBar(), *m_message, m_work)
{
    setObjectName(u"Auswahl"_s);
    language::setDesignText(this, Text::AgeStatistic);
    m_splitter->setObjectName(u"Teiler"_s);
    setAcceptDrops(true);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_selection);
    m_splitter->addWidget(m_statisticsPanel);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 1);
    m_statisticsPanel->tabs().setCurrentIndex(statistics::StatisticsPanel::Chart);
    setCentralWidget(m_splitter);
    connectActions();
    language::formuebersetzen(*this, session.language, session.host);
    unsetCursor();
    updateTitle();
    m_panels.update(session, m_controller);

    m_controller.reloadLists();
    m_selection->listPanel(PersonList::Unmarked).view().setFocus();
    resize(FirstSize * fontMetrics().height());
    restoreWindow(*this, session.host);
    giveFirstSizes();
    m_selection->setListSizes(keptSizes(ListsKey, m_selection->listSplitter().count(), session.host));
    restoreSplitter(*m_splitter, PanelsKey, session.host);
}

Auswahl::~Auswahl()
{
    if (m_session.host.Hauptform == this)
        m_session.host.Hauptform = nullptr;
}

/// The lists get the room of usual names as far as they stand side by side in half of the window; else they stand one
/// above the other in less.
void Auswahl::giveFirstSizes()
{
    const int half = width() * ListsShare / 100;
    const int wanted = std::min(m_selection->sizeHint().width(), half);
    const int lists = half >= m_selection->leastWidthSideBySide() ? wanted : width() * StackedShare / 100;
    m_splitter->setSizes({lists, width() - lists});
}

void Auswahl::connectActions()
{
    using selection::SelectionController;
    const MainActions &actions = *m_actions;
    const auto on = [this](QAction *action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    on(actions.quit, [this] { close(); });
    on(actions.undo, [this] { m_controller.undo(); });
    on(actions.redo, [this] { m_controller.redo(); });
    on(actions.copy, [this] { m_selection->copyNames(); });
    on(actions.selectAll, [this] { m_selection->selectAllPersons(); });
    on(actions.mark, [this] { m_selection->moveSelected(PersonList::Unmarked); });
    on(actions.unmark, [this] { m_selection->moveSelected(PersonList::Marked); });
    on(actions.markAll, [this] { m_selection->moveAll(PersonList::Unmarked); });
    on(actions.unmarkAll, [this] { m_selection->moveAll(PersonList::Marked); });
    on(actions.reload, [this] { m_controller.reloadLists(); });
    on(actions.find, [this] { m_selection->filterPanel().focusName(); });
    on(actions.shortcuts, [this] {
        ShortcutWindow keys(m_session, *this);
        m_session.host.desktop().runDialog(keys);
    });
    connect(actions.showTools, &QAction::toggled, actions.tools, &QWidget::setVisible);
    connect(actions.showStatus, &QAction::toggled, statusBar(), &QWidget::setVisible);
    selection::FilterPanel &filter = m_selection->filterPanel();
    connect(actions.showFilter, &QAction::toggled, &filter, &selection::FilterPanel::setUnfolded);
    connect(&filter, &selection::FilterPanel::unfolded, actions.showFilter, &QAction::setChecked);
    for (QAction *action : {actions.copy, actions.selectAll, actions.mark, actions.unmark})
        m_selection->addListAction(action);

    connect(&m_work, &desktop::Work::began, m_message, &MessageLine::sayRunning);
    connect(&m_work, &desktop::Work::announced, m_message, &MessageLine::sayRunning);
    connect(&m_work, &desktop::Work::ended, this, [this] {
        m_message->sayRunning({});
        if (m_closing)
            QTimer::singleShot(0, this, &QWidget::close);
    });
    connect(&m_controller, &SelectionController::said, this, &Auswahl::say);
    connect(&m_controller, &SelectionController::moved, this,
            [this](const QString &what) { m_message->say(what, SayMs, true); });
    connect(m_selection, &selection::SelectionPanel::said, this, &Auswahl::say);
    connect(&m_controller, &SelectionController::changed, this, &Auswahl::updateState);
    connect(m_selection, &selection::SelectionPanel::selectionChanged, this, &Auswahl::updateState);
    connectStatistic();
}

void Auswahl::connectStatistic()
{
    using selection::SelectionController;
    using statistics::StatisticsPanel;
    const MainActions &actions = *m_actions;
    const auto on = [this](QAction *action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    const std::array<QAction *, 3> tabs{actions.introduction, actions.chart, actions.ageList};
    for (std::size_t i = 0; i < tabs.size(); ++i)
        on(tabs[i], [this, i] { m_statisticsPanel->showTab(static_cast<StatisticsPanel::Tab>(i)); });
    on(actions.openTemplate, [this] { m_templates.open(); });
    on(actions.saveTemplate, [this] { m_templates.save(); });
    on(actions.saveTemplateAs, [this] { m_templates.saveAs(); });
    on(actions.reset, [this] { m_templates.reset(); });
    on(actions.database, [this] { m_family.choose(); });
    on(actions.preview, [this] { m_report.show(); });
    on(actions.print, [this] { m_report.show(u"drucker"_s); });
    on(actions.exportFile, [this] { m_report.show(u"save"_s); });
    on(actions.settings, [this] { m_report.init(); });
    on(actions.manual, [this] { panelaufruf(u"Hilfe"_s); });
    on(actions.about, [this] {
        language::Infoform form(m_session.host, m_session.language, m_session.events, this);
        m_session.host.desktop().runDialog(form);
    });
    connect(actions.recent, &QMenu::aboutToShow, this, &Auswahl::fillRecent);

    connect(&m_controller, &SelectionController::personsChanged, m_statisticsPanel, &StatisticsPanel::personsChanged);
    connect(m_statisticsPanel, &StatisticsPanel::said, this, &Auswahl::say);
    connect(m_statisticsPanel, &StatisticsPanel::personWanted, this, &Auswahl::showMarkedPerson);
    connect(m_statisticsPanel, &StatisticsPanel::unmarkWanted, this,
            [this](const std::vector<qint32> &counters) { m_controller.move(PersonList::Marked, counters, {}); });
    connect(m_statisticsPanel, &StatisticsPanel::personsWanted, this,
            [this] { m_selection->listPanel(PersonList::Unmarked).view().setFocus(); });
    connect(m_statisticsPanel, &StatisticsPanel::edited, this, &Auswahl::updateTitle);
    connect(&m_report, &ReportDesk::said, this, &Auswahl::say);
    connect(&m_templates, &TemplateDesk::said, this, &Auswahl::say);
    connect(&m_templates, &TemplateDesk::currentChanged, this, &Auswahl::updateTitle);
    connect(&m_family, &FamilyDesk::said, this, &Auswahl::say);
}

/// Which template is current, and whether title or introduction still want saving.
void Auswahl::updateTitle()
{
    const QString &current = m_templates.current();
    const bool modified = m_templates.isModified();
    m_actions->reset->setEnabled(m_templates.canReset());
    const QString name = m_session.language.text(Text::AgeStatistic);
    setWindowTitle(current.isEmpty() ? u"%1[*]"_s.arg(name) : u"%1[*] – %2"_s.arg(QFileInfo(current).fileName(), name));
    setWindowModified(modified);
}

void Auswahl::fillRecent()
{
    QMenu &menu = *m_actions->recent;
    menu.clear();
    const QStringList files = m_templates.recent();
    for (const QString &file : files) {
        QAction *entry = menu.addAction(QFileInfo(file).fileName());
        entry->setStatusTip(file);
        entry->setToolTip(file);
        connect(entry, &QAction::triggered, this, [this, file] {
            if (m_templates.mayDiscard())
                m_templates.openFile(file);
        });
    }
    if (files.isEmpty())
        menu.addAction(m_session.language.text(Text::NoTemplate))->setEnabled(false);
}

void Auswahl::panelaufruf(const QString &thema)
{
    if (!m_help)
        m_help = std::make_unique<HelpWindow>(m_session.language, m_session.host);
    m_help->showTopic(thema);
}

namespace {

/// The template that is dragged, a native path; else "".
QString draggedTemplate(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.first().isLocalFile())
        return {};
    const QString file = urls.first().toLocalFile();
    return file.endsWith(u".kvl", Qt::CaseInsensitive) ? file : QString();
}

} // namespace

void Auswahl::dragEnterEvent(QDragEnterEvent *event)
{
    if (!draggedTemplate(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void Auswahl::dropEvent(QDropEvent *event)
{
    const QString file = draggedTemplate(*event->mimeData());
    if (file.isEmpty())
        return;
    event->acceptProposedAction();
    // The program that it was dragged from waits for an answer.
    QTimer::singleShot(0, this, [this, file] {
        if (m_templates.mayDiscard())
            m_templates.openFile(file);
    });
}

void Auswahl::showMarkedPerson(qint32 counter)
{
    dao::Recordset &persons = *m_session.databases.Datentabelle;
    try {
        persons.seekEqual(counter);
        // The statistic may have seen what another program changed before the lists did.
        if (m_controller.isFiltered(PersonList::Marked) || !m_controller.model(PersonList::Marked).countsIn(persons)) {
            m_controller.reloadPlain(PersonList::Marked);
            persons.seekEqual(counter);
        }
        if (persons.noMatch() || !m_controller.model(PersonList::Marked).countsIn(persons))
            return;
        selection::PersonListView &view = m_selection->listPanel(PersonList::Marked).view();
        view.selectTableRows({static_cast<quint32>(persons.position())});
        view.setFocus();
    } catch (const basic::Error &error) {
        m_session.host.desktop().messageBox(language::errorMessage(m_session.language, error), desktop::MessageCritical,
                                            m_session.language.text(Text::Error));
    }
}

void Auswahl::say(const QString &what)
{
    m_message->say(what, SayMs);
}

void Auswahl::updateState()
{
    const MainActions &actions = *m_actions;
    const auto count = [this](PersonList list) {
        return m_controller.model(list).rowCount();
    };
    const bool writable = !m_controller.isReadOnly();
    actions.undo->setEnabled(m_controller.canUndo());
    actions.redo->setEnabled(m_controller.canRedo());
    actions.mark->setEnabled(writable && m_selection->hasSelection(PersonList::Unmarked));
    actions.unmark->setEnabled(writable && m_selection->hasSelection(PersonList::Marked));
    actions.markAll->setEnabled(writable && count(PersonList::Unmarked) > 0);
    actions.unmarkAll->setEnabled(writable && count(PersonList::Marked) > 0);
    m_statisticsPanel->setReadOnly(!writable);
    updateReportActions();
    m_panels.update(m_session, m_controller);
}

/// A report on nobody would be empty.
void Auswahl::updateReportActions()
{
    const MainActions &actions = *m_actions;
    const bool anybody = m_controller.markedCount() > 0;
    const std::array<std::pair<QAction *, Text>, 3> reports{{{actions.preview, Text::ToolPreviewTip},
                                                             {actions.print, Text::ToolPrintTip},
                                                             {actions.exportFile, Text::ToolExportTip}}};
    for (const auto &[action, tip] : reports) {
        action->setEnabled(anybody);
        if (m_session.host.Kurzhilfe == 1)
            action->setToolTip(m_session.language.text(anybody ? tip : Text::MarkPersonsFirst));
    }
}

void Auswahl::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_shown && m_session.host.staysOnTop()) {
        m_shown = true;
        m_session.host.fensteroben(windowHandle(), -1, true);
    }
}

void Auswahl::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    fitTools();
}

/// The tool bar does without its captions where they do not fit.
void Auswahl::fitTools()
{
    QToolBar &tools = *m_actions->tools;
    tools.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (tools.sizeHint().width() > width())
        tools.setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void Auswahl::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // Some file systems tell nobody of a change; coming back to the window is when it matters.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !m_work.isRunning() && !m_closed)
        m_controller.lookForChanges();
}

void Auswahl::closeEvent(QCloseEvent *event)
{
    if (m_work.isRunning()) {
        m_closing = true;
        m_work.cancel();
        event->ignore();
        return;
    }
    m_closing = false;
    // A preview that shows a message stays open.
    if (!m_closed && (!m_templates.mayDiscard() || !m_report.closePreview())) {
        event->ignore();
        return;
    }
    if (!m_closed) {
        m_closed = true;
        m_help.reset();
        saveWindow(*this, {{m_selection->listSplitter(), ListsKey}, {*m_splitter, PanelsKey}}, m_session.host);
        statistics::writeOptions(m_session.host, m_statisticsPanel->options());
        try {
            m_session.close();
        } catch (const basic::Error &error) {
            language::reportError(m_session.host.desktop(), m_session.language, error);
        }
    }
    event->accept();
}

} // namespace kalvenor::app
