// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/host.h"

#include "platform/basic/codepage.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/profile/profile.h"
#include <QFileInfo>
#include <utility>

namespace kalvenor::host {

namespace {

constexpr int ProfileBufferSize = 256;

basic::DriveMap readDrives(const basic::WindowsPath &ownSettingsFile)
{
    basic::DriveMap drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const QByteArray folder = profile::getPrivateProfileString(
            "Laufwerke", QByteArray(1, letter), {}, ProfileBufferSize, basic::nativePath(ownSettingsFile));
        if (!folder.isEmpty())
            drives.insert(QLatin1Char(letter), basic::pathFromStored(basic::decodeAnsi(folder)));
    }
    return drives;
}

} // namespace

basic::WindowsPath uebergeordnetesverzeichnis(const basic::WindowsPath &path)
{
    return basic::WindowsPath(basic::leftPart(path.text(), path.text().lastIndexOf(u'\\')));
}

Host::Host(basic::WindowsPath programFolder, desktop::Desktop &desktop)
    : m_programFolder(std::move(programFolder)), m_desktop(desktop), m_drives(readDrives(ownSettingsFile()))
{
}

QString Host::inilesen(const basic::WindowsPath &file, const QString &section, const QString &key,
                       const QString &fallback) const
{
    QByteArray value = profile::getPrivateProfileString(basic::encodeAnsi(section), basic::encodeAnsi(key),
                                                        basic::encodeAnsi(fallback), ProfileBufferSize, native(file));
    const qsizetype end = value.indexOf('\0');
    if (end >= 0)
        value.truncate(end);
    return basic::decodeAnsi(value);
}

basic::WindowsPath Host::readPath(const basic::WindowsPath &file, const QString &section, const QString &key,
                                  const basic::WindowsPath &fallback) const
{
    const basic::WindowsPath path(inilesen(file, section, key, fallback.text()));
    const basic::WindowsPath other(basic::pathFromStored(path.text()));
    return QFileInfo::exists(native(path)) || !QFileInfo::exists(native(other)) ? path : other;
}

bool Host::inischreiben(const basic::WindowsPath &file, const QString &section, const QString &key,
                        const QString &value) const
{
    return profile::writePrivateProfileString(basic::encodeAnsi(section), basic::encodeAnsi(key),
                                              basic::encodeAnsi(value), native(file));
}

bool Host::inischreiben(const basic::WindowsPath &file, const std::vector<Setting> &settings) const
{
    std::vector<profile::ProfileValue> values;
    for (const Setting &each : settings)
        values.push_back({basic::encodeAnsi(each.section), basic::encodeAnsi(each.key), basic::encodeAnsi(each.value)});
    return profile::writePrivateProfileStrings(values, native(file));
}

bool Host::staysOnTop() const
{
    // A text that holds a number is compared as a number: "1", " 1" and "1.0" are equal to 1.
    bool isNumber = false;
    const double value = basic::trimBlanks(AddInonTop).toDouble(&isNumber);
    return isNumber && value == 1;
}

bool Host::fensteroben(QWindow *form, int onTop, bool activate) const
{
    if (!staysOnTop())
        return false;
    const desktop::StackPlace place = onTop == -1  ? desktop::StackPlace::TopMost
                                      : onTop == 0 ? desktop::StackPlace::NotTopMost
                                                   : desktop::StackPlace::Top;
    return m_desktop.setStackPlace(form, place, activate);
}

} // namespace kalvenor::host
