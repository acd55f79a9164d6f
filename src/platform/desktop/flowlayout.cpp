// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/flowlayout.h"

#include <algorithm>
#include <QWidget>

namespace kalvenor::desktop {

namespace {
constexpr int Gap = 6;
}

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(Gap);
}

FlowLayout::~FlowLayout()
{
    for (QLayoutItem *item : m_items)
        delete item;
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    QLayoutItem *item = itemAt(index);
    if (item != nullptr)
        m_items.erase(m_items.begin() + index);
    return item;
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            size = {size.width() + item->sizeHint().width() + spacing(),
                    std::max(size.height(), item->sizeHint().height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    place(rect, true);
}

/// The height that the items take.
int FlowLayout::place(const QRect &rect, bool move) const
{
    QPoint at = rect.topLeft();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size =
            item->sizeHint().boundedTo({std::max(rect.width(), item->minimumSize().width()), QWIDGETSIZE_MAX});
        if (at.x() > rect.left() && at.x() + size.width() > rect.left() + rect.width()) {
            at = {rect.left(), at.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        if (move)
            item->setGeometry({at, size});
        at.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return at.y() + lineHeight - rect.top();
}

} // namespace kalvenor::desktop
