// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/auswahl.h"

#include "app/mainactions.h"
#include "app/progresspanel.h"
#include "app/windowstate.h"
#include "language/widgetform.h"
#include "selection/filterpanel.h"
#include "selection/personlistpanel.h"
#include "selection/selectionpanel.h"
#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

namespace kalvenor::app {

using selection::PersonList;

namespace {

constexpr int SayMs = 8000;
constexpr int SayUntilNext = 0;
const QString ListsKey = QStringLiteral("Listen");

} // namespace

Auswahl::Auswahl(Program &program, QWidget *parent)
    : QMainWindow(parent), m_program(program), m_work(program.host.desktop()),
      m_controller({program.host, program.language, program.databases, m_work}),
      m_selection(new selection::SelectionPanel(m_controller, this)), m_splitter(new QSplitter(this)),
      m_actions(std::make_unique<MainActions>(*this))
{
    setObjectName(QStringLiteral("Auswahl"));
    language::setDesignText(this, QStringLiteral("20000Altersstatistik"));
    m_splitter->setObjectName(QStringLiteral("Teiler"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_selection);
    setCentralWidget(m_splitter);
    makeStatusBar();
    connectActions();
    language::formuebersetzen(*this, program.language, program.host);
    unsetCursor();

    m_controller.reloadLists();
    m_selection->listPanel(PersonList::Unmarked).view().setFocus();
    resize(980, 660);
    restoreWindow(*this, program.host);
    restoreSplitter(m_selection->listSplitter(), ListsKey, program.host);
}

Auswahl::~Auswahl() = default;

QString Auswahl::text(qint16 id, const QString &germanText)
{
    return language::shownText(m_program.language, id, germanText);
}

void Auswahl::makeStatusBar()
{
    const auto panel = [this](const char *name, const char *tooltip) {
        auto *label = new QLabel(this);
        label->setObjectName(QLatin1String(name));
        label->setContentsMargins(6, 0, 6, 0);
        language::setDesignText(label, {}, QString::fromUtf8(tooltip));
        statusBar()->addPermanentWidget(label);
        return label;
    };
    statusBar()->addPermanentWidget(new ProgressPanel(m_work, this));
    m_database = panel("PanelDatenbank", "20303Die geöffnete Familiendatenbank");
    m_persons = panel("PanelPersonen", "20304Zahl der Personen in der Datenbank");
    m_marked = panel("PanelMarkiert", "20305Zahl der markierten Personen");
    // A long message takes the room of the panels.
    connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString &message) {
        const QList<QLabel *> labels{m_database, m_persons, m_marked};
        int room = statusBar()->width() - statusBar()->fontMetrics().horizontalAdvance(message) - 40;
        for (const QLabel *label : labels)
            room -= label->sizeHint().width();
        for (QLabel *label : labels)
            label->setVisible(message.isEmpty() || room > 0);
        statusBar()->setToolTip(message);
    });
    m_database->setText(QFileInfo(m_program.databases.Familiendatenbank->file()).fileName());
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
    on(actions.find, [this] {
        m_actions->showFilter->setChecked(true);
        m_selection->filterPanel().focusName();
    });
    on(actions.shortcuts, [this] { showShortcuts(); });
    connect(actions.showTools, &QAction::toggled, actions.tools, &QWidget::setVisible);
    connect(actions.showStatus, &QAction::toggled, statusBar(), &QWidget::setVisible);
    connect(actions.showFilter, &QAction::toggled, &m_selection->filterPanel(), &QWidget::setVisible);
    for (QAction *action : {actions.copy, actions.selectAll, actions.mark, actions.unmark})
        m_selection->addListAction(action);

    const auto progress = [this](const QString &what) {
        m_progressText = what;
        say(what, SayUntilNext);
    };
    connect(&m_work, &Work::began, this, progress);
    connect(&m_work, &Work::announced, this, progress);
    connect(&m_work, &Work::ended, this, [this] {
        if (statusBar()->currentMessage() == m_progressText)
            statusBar()->clearMessage();
        if (m_closing)
            QTimer::singleShot(0, this, &QWidget::close);
    });
    connect(&m_controller, &SelectionController::said, this, [this](const QString &what) { say(what, SayMs); });
    connect(m_selection, &selection::SelectionPanel::said, this, [this](const QString &what) { say(what, SayMs); });
    connect(&m_controller, &SelectionController::filterRefused, this,
            [this](const QString &why) { say(why, SayUntilNext); });
    connect(&m_controller, &SelectionController::changed, this, &Auswahl::updateState);
    connect(m_selection, &selection::SelectionPanel::selectionChanged, this, &Auswahl::updateState);
}

void Auswahl::say(const QString &what, int milliseconds)
{
    statusBar()->showMessage(what, milliseconds);
}

void Auswahl::updateState()
{
    const MainActions &actions = *m_actions;
    const auto count = [this](PersonList list) {
        return m_controller.model(list).rowCount();
    };
    actions.undo->setEnabled(m_controller.canUndo());
    actions.redo->setEnabled(m_controller.canRedo());
    actions.mark->setEnabled(m_selection->hasSelection(PersonList::Unmarked));
    actions.unmark->setEnabled(m_selection->hasSelection(PersonList::Marked));
    actions.markAll->setEnabled(count(PersonList::Unmarked) > 0);
    actions.unmarkAll->setEnabled(count(PersonList::Marked) > 0);
    const qint64 all = m_controller.personCount();
    // A filter narrows one list at most; the other one tells how many are marked.
    const qint64 marked =
        m_controller.isFiltered(PersonList::Marked) ? all - count(PersonList::Unmarked) : count(PersonList::Marked);
    m_persons->setText(text(20301, QStringLiteral("Personen: %1")).arg(m_controller.numberText(all)));
    m_marked->setText(text(20302, QStringLiteral("Davon markiert: %1")).arg(m_controller.numberText(marked)));
}

void Auswahl::showShortcuts()
{
    QString rows;
    for (const QAction *action : m_actions->all) {
        if (action->shortcut().isEmpty())
            continue;
        rows += QStringLiteral("<tr><td>%1&nbsp;&nbsp;&nbsp;</td><td>%2</td></tr>")
                    .arg(action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                         QString(action->text()).remove(u'&').toHtmlEscaped());
    }
    QMessageBox box(QMessageBox::NoIcon, text(21311, QStringLiteral("Tastenkürzel")),
                    QStringLiteral("<table>%1</table><p>%2</p>")
                        .arg(rows, text(20023, QStringLiteral("Doppelklick, Eingabetaste oder Ziehen verschiebt "
                                                              "Personen in die andere Liste."))
                                       .toHtmlEscaped()),
                    QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.exec();
}

void Auswahl::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (!m_shown && m_program.host.staysOnTop()) {
        m_shown = true;
        m_program.host.fensteroben(windowHandle(), -1, true);
    }
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
    if (!m_closed) {
        m_closed = true;
        saveWindow(*this, m_program.host);
        saveSplitter(m_selection->listSplitter(), ListsKey, m_program.host);
        m_controller.release();
        try {
            m_program.language.datenbankenschliessen({});
        } catch (const Error &error) {
            m_program.host.desktop().runtimeError(error);
        }
    }
    event->accept();
}

} // namespace kalvenor::app
