// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <vector>

namespace kalvenor::desktop {

/// Items side by side, in as many lines as the width needs. It is never wider than its widest item.
class FlowLayout : public QLayout {
public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override { m_items.push_back(item); }
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return place({0, 0, width, 0}, false); }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    int place(const QRect &rect, bool move) const;

    std::vector<QLayoutItem *> m_items;
};

} // namespace kalvenor::desktop
