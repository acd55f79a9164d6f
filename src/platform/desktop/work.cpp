// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/work.h"

#include <algorithm>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopeGuard>

namespace kalvenor::desktop {

namespace {

constexpr qint64 LookEveryMs = 25;
constexpr qint64 ShowAfterMs = 300;

bool isUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isAmong(const QList<QPointer<QObject>> &objects, const QObject *watched)
{
    return std::any_of(objects.begin(), objects.end(), [watched](const QPointer<QObject> &object) {
        for (const QObject *one = watched; one != nullptr; one = one->parent()) {
            if (one == object)
                return true;
        }
        return false;
    });
}

} // namespace

Work::Work(Desktop &desktop, QObject *parent) : QObject(parent), m_desktop(desktop)
{
}

bool Work::run(const QString &what, const Task &task, Input input)
{
    if (m_running)
        return false;
    m_running = true;
    m_cancelled = false;
    m_input = input;
    m_clock.start();
    m_nextLook = LookEveryMs;
    qApp->installEventFilter(this);
    m_desktop.setPointer(Pointer::Hourglass);
    const auto end = qScopeGuard([this] {
        qApp->removeEventFilter(this);
        m_running = false;
        m_desktop.setPointer(Pointer::Default);
        Q_EMIT ended();
    });
    Q_EMIT began(what);
    task([this](qint64 done, qint64 total) { return advance(done, total); });
    return true;
}

void Work::announce(const QString &what)
{
    Q_EMIT announced(what);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool Work::advance(qint64 done, qint64 total)
{
    const qint64 now = m_clock.elapsed();
    if (now >= m_nextLook) {
        if (now >= ShowAfterMs)
            Q_EMIT advanced(done, total);
        QCoreApplication::processEvents();
        m_nextLook = m_clock.elapsed() + LookEveryMs;
    }
    return !m_cancelled;
}

bool Work::reaches(const QObject *watched) const
{
    // A window hands its input on to the widgets, which are asked for themselves.
    return watched->isWindowType() || isAmong(m_cancelInput, watched) ||
           (m_input == Input::Typing && isAmong(m_typingInput, watched));
}

bool Work::eventFilter(QObject *watched, QEvent *event)
{
    // A question that the work itself asks must be answered; a modal window blocks the others.
    if (!isUserInput(event->type()) || QGuiApplication::modalWindow() != nullptr)
        return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape &&
        !watched->isWindowType())
        cancel();
    return !reaches(watched);
}

} // namespace kalvenor::desktop
