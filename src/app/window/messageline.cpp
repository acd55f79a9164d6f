// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/messageline.h"

#include "platform/desktop/elidedlabel.h"
#include <QAction>
#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

MessageLine::MessageLine(QAction &takeBack, QWidget *parent)
    : QWidget(parent), m_label(new desktop::ElidedLabel(this)), m_takeBack(new QToolButton(this))
{
    m_label->setObjectName(u"Meldungszeile"_s);
    m_label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_takeBack->setObjectName(u"Meldungrueckgaengig"_s);
    m_takeBack->setAutoRaise(true);
    m_takeBack->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_takeBack->setDefaultAction(&takeBack);
    m_takeBack->hide();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(4, 0, 0, 0);
    row->addWidget(m_label);
    row->addWidget(m_takeBack);
    row->addStretch(1);
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, [this] { say({}, 0); });
    connect(&takeBack, &QAction::triggered, this, [this] { say({}, 0); });
}

void MessageLine::say(const QString &what, int milliseconds, bool canTakeBack)
{
    m_said = what;
    m_canTakeBack = canTakeBack;
    if (milliseconds > 0)
        m_end.start(milliseconds);
    else
        m_end.stop();
    showText();
}

void MessageLine::sayRunning(const QString &what)
{
    m_running = what;
    showText();
}

void MessageLine::showText()
{
    m_label->setText(m_running.isEmpty() ? m_said : m_running);
    m_takeBack->setVisible(m_running.isEmpty() && m_canTakeBack);
    Q_EMIT changed();
}

QString MessageLine::text() const
{
    return m_label->text();
}

int MessageLine::wantedWidth() const
{
    return m_label->text().isEmpty()
               ? 0
               : m_label->sizeHint().width() + (m_takeBack->isHidden() ? 0 : m_takeBack->sizeHint().width());
}

} // namespace kalvenor::app
