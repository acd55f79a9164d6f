// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/lists/personlistmodel.h"
#include <functional>
#include <QAbstractItemView>
#include <QElapsedTimer>
#include <vector>

class QHelpEvent;

namespace kalvenor::selection {

class RowTracking;

/// A list of persons, one line each, all of one height: whatever their number, nothing is computed per person.
/// Selection, current person and scroll position stay with the persons when the model shows another result.
class PersonListView : public QAbstractItemView {
    Q_OBJECT
public:
    explicit PersonListView(PersonListModel &model, QWidget *parent = nullptr);

    /// Gives the tooltip of a person, as HTML; without it a name that is too long can be read whole.
    void setCard(const std::function<QString(qint32 counter)> &card) { m_card = card; }
    /// What follows the pointer where more than one person is dragged: "%1 persons", with their number.
    void setDragCaption(const std::function<QString(qint64 count)> &caption) { m_dragCaption = caption; }
    std::vector<qint32> selectedCounters() const;
    qint64 selectedCount() const;
    /// Names of the selected persons, a line each.
    QString selectedNames() const;
    /// Selects these rows of the person table, makes the first one current and visible.
    void selectTableRows(const std::vector<quint32> &tableRows);

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    void keyboardSearch(const QString &typed) override;
    void reset() override;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The selected persons shall go to the other list.
    void moveWanted();
    void selectionCountChanged();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex &) const override { return false; }
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    struct State {
        std::vector<std::pair<int, int>> selected{};
        int current = -1;
        int top = 0;
        int offset = 0; ///< of the top row, in pixels
    };

    void remember();
    void restore(const std::shared_ptr<dao::Recordset> &before);
    void measure();
    int rowAt(int y) const;
    void showTooltip(const QHelpEvent &help);
    void showTarget(bool target);
    QPixmap dragPicture(const std::vector<qint32> &counters) const;
    int pageRows() const;

    PersonListModel &m_persons;
    std::function<QString(qint32)> m_card;
    std::function<QString(qint64)> m_dragCaption;
    bool m_target = false; ///< persons are dragged over the list that may be dropped here
    State m_state;
    QString m_typed;
    QElapsedTimer m_typedClock;
    int m_rowHeight = 1;
};

} // namespace kalvenor::selection
