// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/movebuttons.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include <algorithm>
#include <QBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using desktop::LineIcon;
using language::Text;

namespace {

constexpr int Margin = 4;

struct Button {
    const char *name;
    LineIcon besides, below; ///< where the other list is
    Text caption, tooltip;
};

constexpr std::array<Button, 4> Buttons{
    {{"RM", LineIcon::Right, LineIcon::Down, Text::MoveMark, Text::MarkPersonTip},
     {"RMA", LineIcon::AllRight, LineIcon::AllDown, Text::MoveMarkAll, Text::MarkAllTip},
     {"RM2", LineIcon::Left, LineIcon::Up, Text::MoveUnmark, Text::UnmarkPersonTip},
     {"RM2A", LineIcon::AllLeft, LineIcon::AllUp, Text::MoveUnmarkAll, Text::UnmarkAllTip}}};

int widthAs(const QToolButton &button, Qt::ToolButtonStyle style)
{
    QToolButton probe;
    probe.setFont(button.font());
    probe.setIcon(button.icon());
    probe.setIconSize(button.iconSize());
    probe.setText(button.text());
    probe.setToolButtonStyle(style);
    return probe.sizeHint().width();
}

} // namespace

MoveButtons::MoveButtons(QWidget *parent)
    : QWidget(parent), m_buttons{}, m_layout(new QBoxLayout(QBoxLayout::TopToBottom, this))
{
    m_layout->setContentsMargins(Margin, 0, Margin, 0);
    m_layout->addStretch(1);
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        auto *button = m_buttons[i] = new QToolButton(this);
        button->setObjectName(QLatin1String(Buttons[i].name));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        button->setIcon(desktop::lineIcon(Buttons[i].besides));
        language::setDesignText(button, Buttons[i].caption, Buttons[i].tooltip);
        m_layout->addWidget(button);
        const auto from = static_cast<PersonList>(i / 2);
        connect(button, &QToolButton::clicked, this, [this, from, i] { Q_EMIT moveWanted(from, i % 2 == 1); });
    }
    m_layout->addStretch(1);
}

int MoveButtons::widthWithTexts() const
{
    int widest = 0;
    for (const QToolButton *button : m_buttons)
        widest = std::max(widest, widthAs(*button, Qt::ToolButtonTextBesideIcon));
    return widest + 2 * Margin;
}

int MoveButtons::widthOfIcons() const
{
    return widthAs(*m_buttons[0], Qt::ToolButtonIconOnly) + 2 * Margin;
}

void MoveButtons::arrange(bool stacked, int room)
{
    m_layout->setDirection(stacked ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // In a column all have texts or none; in a row those that move all are the first to do without.
    const int gap = m_layout->spacing();
    int all = 2 * Margin;
    int ones = 2 * Margin;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const int withText = widthAs(*m_buttons[i], Qt::ToolButtonTextBesideIcon);
        all += withText + gap;
        ones += (i % 2 == 0 ? withText : widthAs(*m_buttons[i], Qt::ToolButtonIconOnly)) + gap;
    }
    const bool textOnAll = stacked ? all <= room : widthWithTexts() <= room;
    const bool textOnOnes = textOnAll || (stacked && ones <= room);
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const bool text = i % 2 == 0 ? textOnOnes : textOnAll;
        m_buttons[i]->setIcon(desktop::lineIcon(stacked ? Buttons[i].below : Buttons[i].besides));
        m_buttons[i]->setToolButtonStyle(text ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
        m_layout->setAlignment(m_buttons[i], stacked || text ? Qt::Alignment() : Qt::AlignHCenter);
    }
    setSizePolicy(stacked ? QSizePolicy::Preferred : QSizePolicy::Fixed,
                  stacked ? QSizePolicy::Fixed : QSizePolicy::Preferred);
}

} // namespace kalvenor::selection
