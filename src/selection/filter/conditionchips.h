// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QWidget>
#include <vector>

namespace kalvenor::language {
class Sprachmodul;
}

namespace kalvenor::selection {

/// One thing that the filter asks, and how it is asked no longer.
struct Condition {
    QString text;
    std::function<void()> lift;
};

/// The conditions that are set, each a chip that a click lifts; hidden where there are none.
class ConditionChips : public QWidget {
    Q_OBJECT
public:
    explicit ConditionChips(language::Sprachmodul &texts, QWidget *parent = nullptr);

    void setConditions(const std::vector<Condition> &conditions);

private:
    language::Sprachmodul &m_texts;
    std::vector<QWidget *> m_chips;
};

} // namespace kalvenor::selection
