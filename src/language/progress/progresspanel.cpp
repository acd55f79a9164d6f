// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/progress/progresspanel.h"

#include "language/forms/widgetform.h"
#include <QApplication>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {
constexpr int Steps = 1000;
}

ProgressPanel::ProgressPanel(desktop::Work &work, QWidget *parent) : QWidget(parent), m_bar(new QProgressBar(this))
{
    setObjectName(u"Fortschrittrahmen"_s);
    m_bar->setObjectName(u"fertig"_s);
    auto *cancel = new QPushButton(this);
    cancel->setObjectName(u"Abbrechen"_s);
    cancel->setFocusPolicy(Qt::NoFocus); // Escape does the same; the focus stays where the user works
    setDesignText(cancel, Text::Cancel);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // a status bar would draw the button out
    m_bar->setFixedWidth(160);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_bar);
    row->addWidget(cancel);
    hide();

    work.letThrough(cancel);
    connect(cancel, &QPushButton::clicked, &work, &desktop::Work::cancel);
    connect(&work, &desktop::Work::advanced, this, &ProgressPanel::advance);
    connect(&work, &desktop::Work::ended, this, &QWidget::hide);
}

/// The window in front, or the one that its dialogs belong to, shows how far the work is; those behind are quiet. Where
/// another program is in front, all stays as it is.
void ProgressPanel::showInFront()
{
    const QWidget *front = QApplication::activeWindow();
    if (front == nullptr) {
        show();
        return;
    }
    while (front != window() && front->parentWidget() != nullptr)
        front = front->parentWidget()->window();
    setVisible(front == window());
}

void ProgressPanel::advance(qint64 done, qint64 total)
{
    m_bar->setRange(0, total > 0 ? Steps : 0);
    if (total > 0)
        m_bar->setValue(static_cast<int>(static_cast<double>(done) / static_cast<double>(total) * Steps));
    m_bar->setTextVisible(total > 0); // the percentage
    showInFront();
}

} // namespace kalvenor::language
