// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/selectionpanel.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/flowlayout.h"
#include "selection/filter/filterpanel.h"
#include "selection/panel/movebuttons.h"
#include "selection/panel/noticebar.h"
#include "selection/panel/personlistpanel.h"
#include <algorithm>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

// Rows of a list whole and, where room is scarce, most of them.
const QString UsualName = u"Fischer, Johann Heinrich *1849 +1913"_s;
const QString ShortName = u"Fischer, Margarethe *1849 +1913"_s;
constexpr int ListEdges = 24; ///< scroll bar and frame

} // namespace

SelectionPanel::SelectionPanel(SelectionController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_lists{new PersonListPanel(controller, PersonList::Unmarked, this),
                                                         new PersonListPanel(controller, PersonList::Marked, this)},
      m_splitter(new QSplitter(Qt::Horizontal, this)), m_moves(new MoveButtons(this)),
      m_filter(new FilterPanel(controller.session().language, basic::systemDateOrder(), this)),
      m_readOnly(new NoticeBar("Schreibschutz", Text::ReadOnlyBanner, "Erneutpruefen", Text::CheckAgain, this)),
      m_changed(new NoticeBar("Hinweisleiste", Text::DatabaseChanged, "Jetztneuladen", Text::ReloadNow, this))
{
    m_splitter->setObjectName(u"Listenteiler"_s);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_lists[0]);
    m_splitter->addWidget(m_moves);
    m_splitter->addWidget(m_lists[1]);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setStretchFactor(2, 1);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_listSizes = m_splitter->sizes(); });
    auto *column = new QVBoxLayout(this);
    for (NoticeBar *bar : {m_readOnly, m_changed}) {
        column->addWidget(bar);
        connect(bar, &NoticeBar::wayOnWanted, &m_controller, &SelectionController::reloadLists);
    }
    column->addWidget(m_filter);
    column->addWidget(m_splitter, 1);
    column->addWidget(makeRelatives());

    connectLists();
    connect(&controller, &SelectionController::changedElsewhere, m_changed, &QWidget::show);
    connectFilter();
    orderTabs();
    updateAll();
}

void SelectionPanel::connectLists()
{
    for (PersonListPanel *panel : m_lists) {
        const PersonList list = panel->list();
        connect(&panel->view(), &PersonListView::moveWanted, this, [this, list] { moveSelected(list); });
        connect(&panel->view(), &PersonListView::selectionCountChanged, this, &SelectionPanel::updateAll);
        connect(panel, &PersonListPanel::moveAllWanted, this, &SelectionPanel::moveAll);
        connect(panel, &PersonListPanel::liftWanted, this, [this] {
            m_filter->clear();
            m_controller.clearFilter();
        });
        // Not from inside the drop, which has an event loop of its own.
        connect(
            &m_controller.model(list), &PersonListModel::dropped, this,
            [this, list](const std::vector<qint32> &counters) {
                m_controller.move(list == PersonList::Unmarked ? PersonList::Marked : PersonList::Unmarked, counters,
                                  relatives());
            },
            Qt::QueuedConnection);
    }
    connect(m_moves, &MoveButtons::moveWanted, this,
            [this](PersonList from, bool all) { all ? moveAll(from) : moveSelected(from); });
    connect(&m_controller, &SelectionController::changed, this, [this] {
        m_changed->hide();
        m_readOnly->setVisible(m_controller.isReadOnly());
        m_readOnly->setText(m_controller.session()
                                .language.text(Text::ReadOnlyBanner)
                                .arg(m_controller.session().databases.Familiendatenbank->file()));
        for (PersonListPanel *panel : m_lists)
            panel->update();
        updateAll();
    });
    connect(&m_controller, &SelectionController::arrived, this,
            [this](PersonList list, const std::vector<quint32> &tableRows) {
                listPanel(list).view().selectTableRows(tableRows);
            });
}

/// Reading order: search, left list, between the lists, right list, relatives.
void SelectionPanel::orderTabs()
{
    QWidget *before = &m_filter->lastControl();
    const std::array<QToolButton *, 4> &moves = m_moves->buttons();
    const auto partsOf = [](PersonListPanel &panel) {
        return QList<QWidget *>{&panel.loadButton(), &panel.liftButton(), &panel.view(), &panel.wayOnButton()};
    };
    const QList<QWidget *> behind = partsOf(*m_lists[0]) + QList<QWidget *>(moves.begin(), moves.end()) +
                                    partsOf(*m_lists[1]) + QList<QWidget *>{m_relatives[0], m_relatives[1]};
    for (QWidget *next : behind) {
        setTabOrder(before, next);
        before = next;
    }
}

QWidget *SelectionPanel::makeRelatives()
{
    auto *row = new QWidget(this);
    m_relatives = {new QCheckBox(row), new QCheckBox(row)};
    m_relatives[0]->setObjectName(u"quellenpincl_0"_s);
    m_relatives[1]->setObjectName(u"quellenpincl_1"_s);
    language::setDesignText(m_relatives[0], Text::WithDescendants, Text::WithDescendantsTip);
    language::setDesignText(m_relatives[1], Text::WithAncestors, Text::WithAncestorsTip);
    auto *boxes = new desktop::FlowLayout(row);
    for (QCheckBox *box : m_relatives)
        boxes->addWidget(box);
    return row;
}

// Size

int SelectionPanel::listWidth(const QString &name) const
{
    return fontMetrics().horizontalAdvance(name) + ListEdges;
}

/// Both lists side by side with such names, and between them so much.
int SelectionPanel::widthSideBySide(const QString &name, int between) const
{
    const QMargins margins = layout()->contentsMargins();
    return 2 * listWidth(name) + between + 2 * m_splitter->handleWidth() + margins.left() + margins.right();
}

int SelectionPanel::leastWidthSideBySide() const
{
    return widthSideBySide(ShortName, m_moves->widthOfIcons());
}

QSize SelectionPanel::sizeHint() const
{
    return {widthSideBySide(UsualName, m_moves->widthWithTexts()), QWidget::sizeHint().height()};
}

QSize SelectionPanel::minimumSizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int least = std::max(m_filter->minimumSizeHint().width(), listWidth(ShortName));
    int height = margins.top() + margins.bottom() + m_filter->minimumSizeHint().height() +
                 m_moves->buttons()[0]->sizeHint().height() + m_relatives[0]->sizeHint().height() +
                 2 * layout()->spacing() + 2 * m_splitter->handleWidth();
    for (const PersonListPanel *panel : m_lists)
        height += panel->minimumSizeHint().height();
    return {least + margins.left() + margins.right(), height};
}

void SelectionPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void SelectionPanel::setListSizes(const QList<int> &sizes)
{
    if (sizes.size() == m_splitter->count())
        m_listSizes = sizes;
    m_splitter->setSizes(m_listSizes);
}

/// The lists side by side or one above the other, as the width allows.
void SelectionPanel::arrange()
{
    const bool stacked = width() < leastWidthSideBySide();
    const int forMoves = width() - widthSideBySide(UsualName, 0);
    m_moves->arrange(stacked, stacked ? m_splitter->width() : forMoves);
    m_moves->setMaximumHeight(stacked ? m_moves->sizeHint().height() : QWIDGETSIZE_MAX);
    m_moves->setMaximumWidth(stacked ? QWIDGETSIZE_MAX : m_moves->sizeHint().width());
    const Qt::Orientation wanted = stacked ? Qt::Vertical : Qt::Horizontal;
    if (m_splitter->orientation() == wanted)
        return;
    m_splitter->setOrientation(wanted);
    m_splitter->setSizes(m_listSizes);
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
            m_controller.forgetFilter();
            return;
        }
        m_controller.filter(filter, typed);
    });
    connect(&m_controller, &SelectionController::filterEnded, this, [this] {
        for (PersonListPanel *panel : m_lists)
            panel->view().setEnabled(m_controller.agrees(panel->list()));
        if (m_controller.agrees(PersonList::Unmarked) && m_controller.agrees(PersonList::Marked))
            m_filter->setProblem({});
    });
    connect(&m_controller, &SelectionController::filterDropped, this, [this] { m_filter->setFilter({}); });
    connect(&m_controller, &SelectionController::filterRefused, m_filter, &FilterPanel::setProblem);
    connect(m_filter, &FilterPanel::clearWanted, &m_controller, &SelectionController::clearFilter);
    connect(&m_controller, &SelectionController::filtered, this, [this](const QString &pattern, bool typed) {
        if (!typed)
            m_filter->setPattern(pattern);
        const PersonList list = m_filter->filter().Filterliste;
        Q_EMIT said(m_controller.session()
                        .language.text(Text::FilterFound)
                        .arg(m_controller.numberText(m_controller.model(list).rowCount())));
    });
}

/// A button that can do nothing says why.
void SelectionPanel::explain(QWidget &button, Text usual, Text why, PersonList list)
{
    if (m_controller.session().host.Kurzhilfe != 1)
        return;
    language::Sprachmodul &texts = m_controller.session().language;
    const Text name = list == PersonList::Unmarked ? Text::UnmarkedPersons : Text::MarkedPersons;
    button.setToolTip(m_controller.isReadOnly() ? texts.text(Text::ReadOnlyTip)
                      : button.isEnabled()      ? texts.text(usual)
                                                : texts.text(why).arg(texts.text(name)));
}

void SelectionPanel::updateAll()
{
    const bool writable = !m_controller.isReadOnly();
    for (PersonListPanel *panel : m_lists) {
        const PersonList list = panel->list();
        const bool mark = list == PersonList::Unmarked;
        if (panel->view().hasFocus())
            m_last = list;
        panel->view().setDragEnabled(writable);
        m_moves->one(list).setEnabled(writable && hasSelection(list));
        m_moves->all(list).setEnabled(writable && m_controller.model(list).rowCount() > 0);
        explain(m_moves->one(list), mark ? Text::MarkPersonTip : Text::UnmarkPersonTip, Text::SelectFirst, list);
        explain(m_moves->all(list), mark ? Text::MarkAllTip : Text::UnmarkAllTip, Text::ListIsEmpty, list);
    }
    for (QCheckBox *box : m_relatives)
        box->setEnabled(writable);
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

/// Why not is told.
bool SelectionPanel::mayMark()
{
    if (m_controller.isReadOnly())
        Q_EMIT said(m_controller.session().language.text(Text::ReadOnlyTip));
    return !m_controller.isReadOnly();
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
    if (!mayMark() || !showsWhatIsMeant(from))
        return;
    takeFocusFromFilter(from);
    m_controller.move(from, counters, relatives());
}

void SelectionPanel::moveAll(PersonList from)
{
    if (!mayMark() || !showsWhatIsMeant(from))
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
