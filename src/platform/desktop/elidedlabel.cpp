// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/elidedlabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace kalvenor::desktop {

namespace {
constexpr int LeastCharacters = 4;
}

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {LeastCharacters * fontMetrics().averageCharWidth(), QLabel::sizeHint().height()};
}

QString ElidedLabel::shown() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shown(),
                          foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shown() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace kalvenor::desktop
