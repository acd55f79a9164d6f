// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/selectionpanel.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include "selection/filter/filterpanel.h"
#include "selection/panel/personlistpanel.h"
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

QAbstractButton *moveButton(QWidget *parent, const char *name, desktop::LineIcon icon, Text tooltip)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(desktop::lineIcon(icon));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize({24, 24});
    button->setMinimumWidth(48);
    language::setDesignText(button, {}, tooltip);
    return button;
}

} // namespace

SelectionPanel::SelectionPanel(SelectionController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_lists{new PersonListPanel(controller, PersonList::Unmarked, this),
                                                         new PersonListPanel(controller, PersonList::Marked, this)},
      m_splitter(new QSplitter(Qt::Horizontal, this)),
      m_filter(new FilterPanel(controller.session().language, basic::systemDateOrder(), this))
{
    m_splitter->setObjectName(u"Listenteiler"_s);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_lists[0]);
    m_splitter->addWidget(makeMoveColumn());
    m_splitter->addWidget(m_lists[1]);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setStretchFactor(2, 1);
    auto *column = new QVBoxLayout(this);
    m_notice = makeNoticeBar();
    column->addWidget(m_notice);
    column->addWidget(m_splitter, 1);
    column->addWidget(m_filter);

    for (PersonListPanel *panel : m_lists) {
        const PersonList list = panel->list();
        connect(&panel->view(), &PersonListView::moveWanted, this, [this, list] { moveSelected(list); });
        connect(&panel->view(), &PersonListView::selectionCountChanged, this, &SelectionPanel::updateAll);
        // Not from inside the drop, which has an event loop of its own.
        connect(
            &controller.model(list), &PersonListModel::dropped, this,
            [this, list](const std::vector<qint32> &counters) {
                m_controller.move(list == PersonList::Unmarked ? PersonList::Marked : PersonList::Unmarked, counters,
                                  relatives());
            },
            Qt::QueuedConnection);
    }
    connect(&controller, &SelectionController::changed, this, [this] {
        m_notice->hide();
        for (PersonListPanel *panel : m_lists)
            panel->update();
        updateAll();
    });
    connect(&controller, &SelectionController::arrived, this,
            [this](PersonList list, const std::vector<quint32> &tableRows) {
                listPanel(list).view().selectTableRows(tableRows);
            });
    connect(&controller, &SelectionController::changedElsewhere, m_notice, &QWidget::show);
    connectFilter();
    orderTabs();
    updateAll();
}

/// Reading order: left list, between the lists, right list, filter.
void SelectionPanel::orderTabs()
{
    QWidget *before = &m_lists[0]->loadButton();
    const std::initializer_list<QWidget *> behind{
        &m_lists[0]->view(), m_move[0],      m_moveAll[0],   m_move[1],
        m_moveAll[1],        m_relatives[0], m_relatives[1], &m_lists[1]->loadButton(),
        &m_lists[1]->view(), m_filter};
    for (QWidget *next : behind) {
        setTabOrder(before, next);
        before = next;
    }
}

QWidget *SelectionPanel::makeMoveColumn()
{
    auto *middle = new QWidget(this);
    m_move = {moveButton(middle, "RM", desktop::LineIcon::Right, Text::MarkPersonTip),
              moveButton(middle, "RM2", desktop::LineIcon::Left, Text::UnmarkPersonTip)};
    m_moveAll = {moveButton(middle, "RMA", desktop::LineIcon::AllRight, Text::MarkAllTip),
                 moveButton(middle, "RM2A", desktop::LineIcon::AllLeft, Text::UnmarkAllTip)};
    m_relatives = {new QCheckBox(middle), new QCheckBox(middle)};
    m_relatives[0]->setObjectName(u"quellenpincl_0"_s);
    m_relatives[1]->setObjectName(u"quellenpincl_1"_s);
    language::setDesignText(m_relatives[0], Text::WithDescendants, Text::WithDescendantsTip);
    language::setDesignText(m_relatives[1], Text::WithAncestors, Text::WithAncestorsTip);

    auto *column = new QVBoxLayout(middle);
    column->setContentsMargins(4, 0, 4, 0);
    column->addStretch(1);
    for (QAbstractButton *button : {m_move[0], m_moveAll[0], m_move[1], m_moveAll[1]})
        column->addWidget(button, 0, Qt::AlignHCenter);
    column->addSpacing(12);
    for (QCheckBox *box : m_relatives)
        column->addWidget(box);
    column->addStretch(1);

    for (const PersonList list : {PersonList::Unmarked, PersonList::Marked}) {
        const auto place = static_cast<std::size_t>(list);
        connect(m_move[place], &QAbstractButton::clicked, this, [this, list] { moveSelected(list); });
        connect(m_moveAll[place], &QAbstractButton::clicked, this, [this, list] { moveAll(list); });
    }
    return middle;
}

QWidget *SelectionPanel::makeNoticeBar()
{
    auto *bar = new QFrame(this);
    bar->setObjectName(u"Hinweisleiste"_s);
    bar->setFrameShape(QFrame::StyledPanel);
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::ToolTipBase);
    auto *label = new QLabel(bar);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setWordWrap(true);
    language::setDesignText(label, Text::DatabaseChanged);
    auto *reload = new QPushButton(bar);
    reload->setObjectName(u"Jetztneuladen"_s);
    language::setDesignText(reload, Text::ReloadNow);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(label, 1);
    row->addWidget(reload);
    connect(reload, &QPushButton::clicked, &m_controller, &SelectionController::reloadLists);
    bar->hide();
    return bar;
}

void SelectionPanel::connectFilter()
{
    for (QWidget *entry : m_filter->entries())
        m_controller.work().letTypingThrough(entry);
    connect(m_filter, &FilterPanel::edited, &m_controller, &SelectionController::giveUpFilter);
    connect(m_filter, &FilterPanel::wanted, this, [this](const Filter &filter, bool typed) {
        const bool filtered =
            m_controller.isFiltered(PersonList::Unmarked) || m_controller.isFiltered(PersonList::Marked);
        if (typed && !filtered && m_filter->isEmpty()) {
            Q_EMIT said({}); // what was wrong with the text is gone with it
            m_controller.forgetFilter();
            return;
        }
        m_controller.filter(filter, typed);
    });
    connect(&m_controller, &SelectionController::filterEnded, this, [this] {
        for (PersonListPanel *panel : m_lists)
            panel->view().setEnabled(m_controller.agrees(panel->list()));
    });
    connect(&m_controller, &SelectionController::filterDropped, this, [this] { m_filter->setFilter({}); });
    connect(m_filter, &FilterPanel::clearWanted, &m_controller, &SelectionController::clearFilter);
    connect(&m_controller, &SelectionController::filtered, this, [this](const QString &pattern, bool typed) {
        if (!typed)
            m_filter->setPattern(pattern);
        language::Sprachmodul &texts = m_controller.session().language;
        const PersonList list = m_filter->filter().Filterliste;
        if (const QString date = m_filter->unsoundDate(); !date.isEmpty())
            Q_EMIT said(texts.text(Text::NoDate).arg(date));
        else
            Q_EMIT said(
                texts.text(Text::FilterFound).arg(m_controller.numberText(m_controller.model(list).rowCount())));
    });
}

void SelectionPanel::updateAll()
{
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        if (m_lists[i]->view().hasFocus())
            m_last = m_lists[i]->list();
        m_move[i]->setEnabled(hasSelection(m_lists[i]->list()));
        m_moveAll[i]->setEnabled(m_controller.model(m_lists[i]->list()).rowCount() > 0);
    }
    Q_EMIT selectionChanged();
}

Relatives SelectionPanel::relatives() const
{
    return {m_relatives[0]->isChecked(), m_relatives[1]->isChecked()};
}

bool SelectionPanel::hasSelection(PersonList list) const
{
    return m_lists[static_cast<std::size_t>(list)]->view().selectionModel()->hasSelection();
}

/// Carries out what was typed a moment ago. False where the list does not show what the filter says; why is told.
bool SelectionPanel::showsWhatIsMeant(PersonList list)
{
    const bool knownBefore = !m_controller.agrees(list);
    m_filter->flush();
    const bool agrees = m_controller.agrees(list);
    if (knownBefore && !agrees)
        Q_EMIT said(m_controller.session().language.text(Text::FilterNotShown));
    return agrees;
}

void SelectionPanel::moveSelected(PersonList from)
{
    // Those in hand now: a filter that is only about to narrow the list must not put others there.
    const std::vector<qint32> counters = listPanel(from).view().selectedCounters();
    if (!showsWhatIsMeant(from))
        return;
    takeFocusFromFilter(from);
    m_controller.move(from, counters, relatives());
}

void SelectionPanel::moveAll(PersonList from)
{
    if (!showsWhatIsMeant(from))
        return;
    takeFocusFromFilter(from);
    m_controller.moveAll(from);
}

/// After a move, undo means the marks and not the text typed before.
void SelectionPanel::takeFocusFromFilter(PersonList to)
{
    if (m_filter->isAncestorOf(QApplication::focusWidget()))
        listPanel(to).view().setFocus();
}

PersonListPanel &SelectionPanel::lastList()
{
    for (PersonListPanel *panel : m_lists) {
        if (panel->view().hasFocus())
            m_last = panel->list();
    }
    return listPanel(m_last);
}

void SelectionPanel::copyNames()
{
    if (const QString names = lastList().view().selectedNames(); !names.isEmpty())
        QGuiApplication::clipboard()->setText(names);
}

void SelectionPanel::selectAllPersons()
{
    PersonListView &view = lastList().view();
    view.setFocus();
    view.selectAll();
}

void SelectionPanel::addListAction(QAction *action)
{
    for (PersonListPanel *panel : m_lists) {
        panel->view().setContextMenuPolicy(Qt::ActionsContextMenu);
        panel->view().addAction(action);
    }
}

} // namespace kalvenor::selection
