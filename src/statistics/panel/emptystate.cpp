// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/emptystate.h"

#include "language/forms/accesskeys.h"
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

EmptyState *EmptyState::standIn(QWidget *view, language::Sprachmodul &texts)
{
    return new EmptyState(view, texts, new QWidget(view->parentWidget()));
}

EmptyState::EmptyState(QWidget *view, language::Sprachmodul &texts, QWidget *frame)
    : QWidget(frame), m_texts(texts), m_stack(new QStackedLayout(frame)), m_missing(new QLabel(this)),
      m_way(new QPushButton(this))
{
    setObjectName(u"Leer_"_s + view->objectName());
    m_missing->setWordWrap(true);
    m_missing->setAlignment(Qt::AlignCenter);
    m_way->setObjectName(u"Weiter_"_s + view->objectName());
    auto *column = new QVBoxLayout(this);
    column->addStretch(1);
    column->addWidget(m_missing);
    column->addWidget(m_way, 0, Qt::AlignHCenter);
    column->addStretch(1);
    m_stack->addWidget(view);
    m_stack->addWidget(this);
    connect(m_way, &QPushButton::clicked, this, [this] { m_onWay(); });
}

void EmptyState::tell(language::Text missing, language::Text wayCaption, std::function<void()> way)
{
    m_missing->setText(m_texts.text(missing));
    m_way->setText(language::withoutAccessKey(m_texts.text(wayCaption))); // the same may stand beside it with its key
    m_onWay = std::move(way);
    m_stack->setCurrentWidget(this);
}

void EmptyState::showView()
{
    m_stack->setCurrentIndex(0);
}

} // namespace kalvenor::statistics
