// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/personlistview.h"

#include "selection/lists/personlistaccess.h"
#include "selection/lists/rowtracking.h"
#include <algorithm>
#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

namespace kalvenor::selection {

namespace {
constexpr int TargetFrame = 2;
constexpr int DragOffset = 8;
} // namespace

PersonListView::PersonListView(PersonListModel &model, QWidget *parent) : QAbstractItemView(parent), m_persons(model)
{
    setModel(&model);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    PersonListAccess::install();
    measure();
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &PersonListView::remember);
    connect(&model, &PersonListModel::replaced, this, &PersonListView::restore);
}

void PersonListView::measure()
{
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameVMargin, nullptr, this) + 2;
    m_rowHeight = std::max(1, fontMetrics().height() + 2 * margin);
}

QSize PersonListView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 36, m_rowHeight * 14};
}

// Geometry

int PersonListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

int PersonListView::rowAt(int y) const
{
    const int row = (y + verticalOffset()) / m_rowHeight;
    return y + verticalOffset() >= 0 && row < m_persons.rowCount() ? row : -1;
}

int PersonListView::pageRows() const
{
    return std::max(1, viewport()->height() / m_rowHeight);
}

QRect PersonListView::visualRect(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    return {0, index.row() * m_rowHeight - verticalOffset(), viewport()->width(), m_rowHeight};
}

QModelIndex PersonListView::indexAt(const QPoint &point) const
{
    const int row = rowAt(point.y());
    return row < 0 ? QModelIndex() : m_persons.index(row);
}

void PersonListView::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const int top = index.row() * m_rowHeight;
    const int bottom = top + m_rowHeight - viewport()->height();
    QScrollBar *bar = verticalScrollBar();
    switch (hint) {
    case EnsureVisible:
        if (top < bar->value())
            bar->setValue(top);
        else if (bottom > bar->value())
            bar->setValue(bottom);
        break;
    case PositionAtTop:
        bar->setValue(top);
        break;
    case PositionAtBottom:
        bar->setValue(bottom);
        break;
    case PositionAtCenter:
        bar->setValue((top + bottom) / 2);
        break;
    }
}

void PersonListView::updateGeometries()
{
    QScrollBar *bar = verticalScrollBar();
    bar->setSingleStep(m_rowHeight);
    bar->setPageStep(viewport()->height());
    bar->setRange(0, std::max(0, m_persons.rowCount() * m_rowHeight - viewport()->height()));
    QAbstractItemView::updateGeometries();
}

void PersonListView::scrollContentsBy(int dx, int dy)
{
    scrollDirtyRegion(dx, dy);
    viewport()->scroll(dx, dy);
}

void PersonListView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const int count = m_persons.rowCount();
    const QRect area = event->rect();
    const int first = std::max(0, (area.top() + verticalOffset()) / m_rowHeight);
    const int last = std::min(count - 1, (area.bottom() + verticalOffset()) / m_rowHeight);
    const QStyle::State plain = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
    for (int row = first; row <= last; ++row) {
        const QModelIndex index = m_persons.index(row);
        option.rect = visualRect(index);
        option.state = plain;
        if (selectionModel()->isSelected(index))
            option.state |= QStyle::State_Selected;
        if (index == currentIndex() && hasFocus())
            option.state |= QStyle::State_HasFocus;
        itemDelegateForIndex(index)->paint(&painter, option, index);
    }
    if (m_target) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), TargetFrame));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
}

void PersonListView::changeEvent(QEvent *event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        measure();
        updateGeometries();
        viewport()->update();
    }
}

bool PersonListView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        showTooltip(*static_cast<QHelpEvent *>(event));
        return true;
    }
    return QAbstractItemView::viewportEvent(event);
}

void PersonListView::showTooltip(const QHelpEvent &help)
{
    const QModelIndex index = indexAt(help.pos());
    QString tip;
    if (index.isValid() && m_card) {
        tip = m_card(m_persons.counterAt(index.row()));
    } else if (index.isValid()) {
        const QString name = m_persons.nameAt(index.row());
        if (fontMetrics().horizontalAdvance(name) + 8 > viewport()->width())
            tip = name.toHtmlEscaped();
    }
    QToolTip::showText(help.globalPos(), tip, this, visualRect(index));
}

// Selection

QModelIndex PersonListView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = m_persons.rowCount() - 1;
    if (last < 0)
        return {};
    const int current = currentIndex().isValid() ? currentIndex().row() : -1;
    int row = current;
    switch (action) {
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = last;
        break;
    case MoveUp:
    case MovePrevious:
        row = current - 1;
        break;
    case MoveDown:
    case MoveNext:
        row = current + 1;
        break;
    case MovePageUp:
        row = current - pageRows();
        break;
    case MovePageDown:
        row = current + pageRows();
        break;
    case MoveLeft:
    case MoveRight:
        break;
    }
    return m_persons.index(std::clamp(row, 0, last));
}

void PersonListView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const int last = m_persons.rowCount() - 1;
    const int from = (rect.top() + verticalOffset()) / m_rowHeight;
    const int to = (rect.bottom() + verticalOffset()) / m_rowHeight;
    if (last < 0 || to < 0 || from > last) {
        selectionModel()->select(QItemSelection(), command);
        return;
    }
    selectionModel()->select(
        QItemSelection(m_persons.index(std::clamp(from, 0, last)), m_persons.index(std::clamp(to, 0, last))), command);
}

QRegion PersonListView::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region;
    const QRect viewportRect = viewport()->rect();
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid())
            region += visualRect(m_persons.index(range.top()))
                          .united(visualRect(m_persons.index(range.bottom())))
                          .intersected(viewportRect);
    }
    return region;
}

void PersonListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QAbstractItemView::selectionChanged(selected, deselected);
    viewport()->update();
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::SelectionWithin);
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT selectionCountChanged();
}

void PersonListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QAbstractItemView::currentChanged(current, previous);
    if (!current.isValid() || !QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

qint64 PersonListView::selectedCount() const
{
    qint64 count = 0;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        count += range.height();
    return count;
}

std::vector<qint32> PersonListView::selectedCounters() const
{
    std::vector<qint32> counters;
    counters.reserve(static_cast<std::size_t>(selectedCount()));
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            counters.push_back(m_persons.counterAt(row));
    }
    return counters;
}

QString PersonListView::selectedNames() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    QString names;
    for (const int row : rows)
        names += m_persons.nameAt(row) + u'\n';
    return names;
}

void PersonListView::selectTableRows(const std::vector<quint32> &tableRows)
{
    const QItemSelection selection = selectionOfTableRows(m_persons, tableRows);
    if (selection.isEmpty())
        return;
    const QModelIndex first = selection.first().topLeft();
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollTo(first, EnsureVisible);
}

// The persons stay where they are when the model shows another result

void PersonListView::remember()
{
    m_state = {};
    for (const QItemSelectionRange &range : selectionModel()->selection())
        m_state.selected.emplace_back(range.top(), range.bottom());
    m_state.current = currentIndex().isValid() ? currentIndex().row() : -1;
    m_state.top = verticalOffset() / m_rowHeight;
    m_state.offset = verticalOffset() % m_rowHeight;
}

void PersonListView::reset()
{
    QAbstractItemView::reset();
    updateGeometries();
    viewport()->update();
}

void PersonListView::restore(const std::shared_ptr<dao::Recordset> &before)
{
    if (!before || !before->isOpen() || m_persons.rowCount() == 0) {
        Q_EMIT selectionCountChanged();
        return;
    }
    RowTracking tracking(*before, m_persons);
    verticalScrollBar()->setValue(tracking.rowOrNext(m_state.top) * m_rowHeight + m_state.offset);
    QItemSelection selection = tracking.selection(m_state.selected);
    if (m_state.current >= 0) {
        const QModelIndex current = m_persons.index(tracking.rowOrNext(m_state.current));
        // Where all the selected persons have moved, the one behind them is next in hand.
        if (selection.isEmpty() && !m_state.selected.empty() && tracking.hasMoved(m_state.selected.front().first))
            selection.select(current, current);
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    Q_EMIT selectionCountChanged();
}

// Keys, mouse, dragging

void PersonListView::keyboardSearch(const QString &typed)
{
    if (!m_typedClock.isValid() || m_typedClock.elapsed() > QApplication::keyboardInputInterval() * 3)
        m_typed.clear();
    m_typedClock.start();
    m_typed += typed;
    const int row = m_persons.findName(m_typed);
    if (row >= 0)
        setCurrentIndex(m_persons.index(row));
}

void PersonListView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Delete:
        if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
            event->accept();
            // The frame alone shows who is meant; Del asks for a selection.
            if (event->key() != Qt::Key_Delete && !selectionModel()->hasSelection() && currentIndex().isValid())
                selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
            Q_EMIT moveWanted();
            return;
        }
        break;
    default:
        break;
    }
    QAbstractItemView::keyPressEvent(event);
    // Home on the first person, which has the frame but is not selected yet, moves to nobody else: it selects.
    if ((event->key() == Qt::Key_Home || event->key() == Qt::Key_End) && event->modifiers() == Qt::NoModifier &&
        !selectionModel()->hasSelection() && currentIndex().isValid())
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

void PersonListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        event->accept();
        Q_EMIT moveWanted();
        return;
    }
    QAbstractItemView::mouseDoubleClickEvent(event);
}

void PersonListView::startDrag(Qt::DropActions supportedActions)
{
    const std::vector<qint32> counters = selectedCounters();
    if (counters.empty())
        return;
    auto *drag = new QDrag(this); // Qt deletes it
    drag->setMimeData(m_persons.mimeDataOf(counters));
    const QPixmap picture = dragPicture(counters);
    drag->setPixmap(picture);
    drag->setHotSpot({-DragOffset, -DragOffset});
    drag->exec(supportedActions, Qt::MoveAction);
}

/// Who, or how many, is dragged.
QPixmap PersonListView::dragPicture(const std::vector<qint32> &counters) const
{
    const auto count = static_cast<qint64>(counters.size());
    const QModelIndex first = selectionModel()->selection().first().topLeft();
    const QString text = count > 1 && m_dragCaption ? m_dragCaption(count) : first.data().toString();
    const QSize size(fontMetrics().horizontalAdvance(text) + 2 * DragOffset, m_rowHeight + DragOffset / 2);
    QPixmap picture(size * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(palette().color(QPalette::Highlight));
    QPainter painter(&picture);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(QRect({}, size), Qt::AlignCenter, text);
    return picture;
}

void PersonListView::showTarget(bool target)
{
    m_target = target;
    viewport()->update();
}

void PersonListView::dragEnterEvent(QDragEnterEvent *event)
{
    QAbstractItemView::dragEnterEvent(event);
    showTarget(m_persons.canDropMimeData(event->mimeData(), Qt::MoveAction, -1, -1, {}));
}

void PersonListView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QAbstractItemView::dragLeaveEvent(event);
    showTarget(false);
}

void PersonListView::dropEvent(QDropEvent *event)
{
    showTarget(false);
    QAbstractItemView::dropEvent(event);
}

} // namespace kalvenor::selection
