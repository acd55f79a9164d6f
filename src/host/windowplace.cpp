// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/windowplace.h"

#include <algorithm>
#include <array>
#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace kalvenor::host {

namespace {

const QString Section = u"Fenster"_s;
const QString Maximized = u"Maximiert"_s;
const std::array<QString, 4> Place{u"Links"_s, u"Oben"_s, u"Breite"_s, u"Hoehe"_s};
/// What a window manager draws around a window, at most.
constexpr QSize Frame(12, 38);

} // namespace

QRect fittedPlace(QRect wanted, const QRect &space)
{
    const QSize room = space.size() - Frame;
    const QSize size = wanted.size().boundedTo(room);
    return {QPoint(std::clamp(wanted.x(), space.x(), space.x() + room.width() - size.width()),
                   std::clamp(wanted.y(), space.y(), space.y() + room.height() - size.height())),
            size};
}

WindowPlace::WindowPlace(QWidget &window, const Host &host, const QString &name, QSize first)
    : QObject(&window), m_window(window), m_host(host), m_name(name)
{
    restore(first);
    window.installEventFilter(this);
}

void WindowPlace::restore(QSize first)
{
    const auto read = [this](const QString &what) {
        return m_host.inilesen(m_host.ownSettingsFile(), Section, key(what), {});
    };
    std::array<int, 4> numbers{};
    bool complete = true;
    for (std::size_t i = 0; i < Place.size(); ++i) {
        bool isNumber = false;
        numbers[i] = read(Place[i]).toInt(&isNumber);
        complete = complete && isNumber;
    }
    const QRect kept(numbers[0], numbers[1], std::max(numbers[2], 1), std::max(numbers[3], 1));
    const QScreen *screen = complete ? QGuiApplication::screenAt(kept.center()) : nullptr;
    const QRect space = (screen != nullptr ? screen : m_window.screen())->availableGeometry();
    const QRect place = fittedPlace(complete ? kept : QRect(space.topLeft(), first), space);
    m_window.resize(place.size());
    m_opened = m_window.size();
    if (screen != nullptr) // else where the window manager finds it best
        m_window.move(place.topLeft());
    if (read(Maximized) == u"1")
        m_window.setWindowState(m_window.windowState() | Qt::WindowMaximized);
}

void WindowPlace::save() const
{
    const bool maximized = m_window.isMaximized() || m_window.isFullScreen();
    const QPoint corner = maximized ? m_window.normalGeometry().topLeft() : m_window.pos();
    const QSize size = maximized ? m_window.normalGeometry().size() : m_window.size();
    const std::array<int, 4> numbers{corner.x(), corner.y(), size.width(), size.height()};
    std::vector<Host::Setting> settings;
    for (std::size_t i = 0; i < Place.size(); ++i)
        settings.push_back({Section, key(Place[i]), QString::number(numbers[i])});
    settings.push_back({Section, key(Maximized), maximized ? u"1"_s : u"0"_s});
    m_host.inischreiben(m_host.ownSettingsFile(), settings);
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event)
{
    // Also where the program ends with the window open; a spontaneous one only minimizes it.
    const bool closes = watched == &m_window && event->type() == QEvent::Hide && !event->spontaneous();
    if (closes && (qobject_cast<QDialog *>(&m_window) == nullptr || m_window.size() != m_opened))
        save();
    return QObject::eventFilter(watched, event);
}

} // namespace kalvenor::host
