// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/conditionchips.h"

#include "language/texts/sprache.h"
#include "platform/desktop/flowlayout.h"
#include "platform/desktop/lineicon.h"
#include <QToolButton>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

ConditionChips::ConditionChips(language::Sprachmodul &texts, QWidget *parent) : QWidget(parent), m_texts(texts)
{
    setObjectName(u"Bedingungen"_s);
    new desktop::FlowLayout(this);
    hide();
}

void ConditionChips::setConditions(const std::vector<Condition> &conditions)
{
    for (QWidget *chip : m_chips) {
        chip->hide();
        chip->deleteLater(); // it may be the one that was clicked
    }
    m_chips.clear();
    QWidget *before = this;
    for (const Condition &condition : conditions) {
        auto *chip = new QToolButton(this);
        chip->setObjectName(u"Bedingung_%1"_s.arg(m_chips.size()));
        chip->setText(u' ' + condition.text); // away from the edge
        chip->setIcon(desktop::lineIcon(desktop::LineIcon::Clear));
        chip->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        chip->setLayoutDirection(Qt::RightToLeft); // the cross behind the text
        chip->setFocusPolicy(Qt::StrongFocus);
        chip->setAccessibleName(m_texts.text(Text::LiftCondition).arg(condition.text));
        layout()->addWidget(chip);
        connect(chip, &QToolButton::clicked, this, condition.lift);
        setTabOrder(std::exchange(before, chip), chip);
        m_chips.push_back(chip);
    }
    setVisible(!m_chips.empty());
}

} // namespace kalvenor::selection
