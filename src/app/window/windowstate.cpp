// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/windowstate.h"

#include <algorithm>
#include <array>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

const QString Section = u"Fenster"_s;
const QString Maximized = u"Maximiert"_s;
const std::array<QString, 4> Place{u"Links"_s, u"Oben"_s, u"Breite"_s, u"Hoehe"_s};

QString read(const host::Host &host, const QString &key)
{
    return host.inilesen(host.ownSettingsFile(), Section, key, {});
}

void write(const host::Host &host, const QString &key, const QString &value)
{
    host.inischreiben(host.ownSettingsFile(), Section, key, value);
}

} // namespace

void restoreWindow(QMainWindow &window, const host::Host &host)
{
    std::array<int, 4> numbers{};
    bool complete = true;
    for (std::size_t i = 0; i < Place.size(); ++i) {
        bool isNumber = false;
        numbers[i] = read(host, Place[i]).toInt(&isNumber);
        complete = complete && isNumber;
    }
    if (complete) {
        const QRect wanted(numbers[0], numbers[1], std::max(numbers[2], 1), std::max(numbers[3], 1));
        const QScreen *screen = QGuiApplication::screenAt(wanted.center());
        const QRect space = (screen != nullptr ? screen : window.screen())->availableGeometry();
        window.resize(wanted.size().boundedTo(space.size()).expandedTo(window.minimumSizeHint()));
        if (screen != nullptr)
            window.move(wanted.topLeft());
    }
    if (read(host, Maximized) == u"1")
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void saveWindow(const QMainWindow &window, const host::Host &host)
{
    const bool maximized = window.isMaximized() || window.isFullScreen();
    const QSize size = maximized ? window.normalGeometry().size() : window.size();
    const QPoint corner = maximized ? window.normalGeometry().topLeft() : window.pos();
    const std::array<int, 4> numbers{corner.x(), corner.y(), size.width(), size.height()};
    for (std::size_t i = 0; i < Place.size(); ++i)
        write(host, Place[i], QString::number(numbers[i]));
    write(host, Maximized, maximized ? u"1"_s : u"0"_s);
}

void restoreSplitter(QSplitter &splitter, const QString &key, const host::Host &host)
{
    QList<int> sizes;
    const QStringList texts = read(host, key).split(u',');
    for (const QString &text : texts) {
        bool isNumber = false;
        sizes << text.toInt(&isNumber);
        if (!isNumber || sizes.last() < 0)
            return;
    }
    if (sizes.size() == splitter.count())
        splitter.setSizes(sizes);
}

void saveSplitter(const QSplitter &splitter, const QString &key, const host::Host &host)
{
    QStringList texts;
    const QList<int> sizes = splitter.sizes();
    for (const int size : sizes)
        texts << QString::number(size);
    write(host, key, texts.join(u','));
}

} // namespace kalvenor::app
