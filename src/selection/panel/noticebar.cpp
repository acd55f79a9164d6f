// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/noticebar.h"

#include "language/forms/widgetform.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace kalvenor::selection {

NoticeBar::NoticeBar(const char *name, language::Text notice, const char *buttonName, language::Text wayOn,
                     QWidget *parent)
    : QFrame(parent), m_label(new QLabel(this))
{
    setObjectName(QLatin1String(name));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setForegroundRole(QPalette::ToolTipText);
    m_label->setWordWrap(true);
    language::setDesignText(m_label, notice);
    auto *button = new QPushButton(this);
    button->setObjectName(QLatin1String(buttonName));
    button->setAutoDefault(false);
    language::setDesignText(button, wayOn);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(m_label, 1);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, &NoticeBar::wayOnWanted);
    hide();
}

void NoticeBar::setText(const QString &text)
{
    m_label->setText(text);
}

} // namespace kalvenor::selection
