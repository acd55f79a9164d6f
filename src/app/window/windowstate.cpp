// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/windowstate.h"

#include "host/windowplace.h"
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

QString sizesText(const QSplitter &splitter)
{
    QStringList texts;
    const QList<int> sizes = splitter.sizes();
    for (const int size : sizes)
        texts << QString::number(size);
    return texts.join(u',');
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
    const QRect kept(numbers[0], numbers[1], std::max(numbers[2], 1), std::max(numbers[3], 1));
    const QScreen *screen = complete ? QGuiApplication::screenAt(kept.center()) : nullptr;
    const QRect space = (screen != nullptr ? screen : window.screen())->availableGeometry();
    QRect wanted = complete ? kept : QRect(space.topLeft(), window.size());
    wanted.setSize(wanted.size().expandedTo(window.minimumSizeHint()));
    const QRect place = host::fittedPlace(wanted, space);
    window.resize(place.size().expandedTo(window.minimumSizeHint()));
    if (screen != nullptr) // else where the window manager finds it best
        window.move(place.topLeft());
    if (read(host, Maximized) == u"1")
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

QList<int> keptSizes(const QString &key, qsizetype parts, const host::Host &host)
{
    QList<int> sizes;
    const QStringList texts = read(host, key).split(u',');
    for (const QString &text : texts) {
        bool isNumber = false;
        sizes << text.toInt(&isNumber);
        if (!isNumber || sizes.last() < 0)
            return {};
    }
    return sizes.size() == parts ? sizes : QList<int>();
}

void restoreSplitter(QSplitter &splitter, const QString &key, const host::Host &host)
{
    if (const QList<int> sizes = keptSizes(key, splitter.count(), host); !sizes.isEmpty())
        splitter.setSizes(sizes);
}

void saveWindow(const QMainWindow &window, const std::vector<KeptSplitter> &splitters, const host::Host &host)
{
    const bool maximized = window.isMaximized() || window.isFullScreen();
    const QSize size = maximized ? window.normalGeometry().size() : window.size();
    const QPoint corner = maximized ? window.normalGeometry().topLeft() : window.pos();
    const std::array<int, 4> numbers{corner.x(), corner.y(), size.width(), size.height()};
    std::vector<host::Host::Setting> settings;
    for (std::size_t i = 0; i < Place.size(); ++i)
        settings.push_back({Section, Place[i], QString::number(numbers[i])});
    settings.push_back({Section, Maximized, maximized ? u"1"_s : u"0"_s});
    for (const KeptSplitter &kept : splitters)
        settings.push_back({Section, kept.key, sizesText(kept.splitter)});
    host.inischreiben(host.ownSettingsFile(), settings);
}

} // namespace kalvenor::app
