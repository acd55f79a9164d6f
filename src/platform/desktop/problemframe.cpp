// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/problemframe.h"

#include <QEvent>
#include <QPainter>

namespace kalvenor::desktop {

namespace {
constexpr qreal FrameWidth = 2;
constexpr qreal Rounding = 3;
constexpr QRgb OnLight = 0xffb3261e;
constexpr QRgb OnDark = 0xffff8a80;
constexpr int Middle = 128;

QColor red(const QPalette &palette)
{
    return QColor::fromRgba(palette.color(QPalette::Window).lightness() > Middle ? OnLight : OnDark);
}

} // namespace

ProblemFrame::ProblemFrame(QWidget &field) : QWidget(&field)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    field.installEventFilter(this);
    hide();
}

void ProblemFrame::setProblem(const QString &why)
{
    parentWidget()->setAccessibleDescription(why);
    setGeometry(parentWidget()->rect());
    setVisible(!why.isEmpty());
    raise();
}

bool ProblemFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void ProblemFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(red(palette()), FrameWidth));
    const qreal inset = FrameWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), Rounding, Rounding);
}

ProblemLabel::ProblemLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void ProblemLabel::setProblem(const QString &why)
{
    QPalette palette = parentWidget()->palette();
    palette.setColor(QPalette::WindowText, red(palette));
    setPalette(palette);
    setText(why);
    setVisible(!why.isEmpty());
}

} // namespace kalvenor::desktop
