// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "platform/dao/dao.h"
#include <optional>
#include <QByteArrayView>
#include <QImage>
#include <QString>
#include <vector>

namespace kalvenor::language {

/// One image of the list of event kinds.
struct EventImage {
    static constexpr int SymbolLength = 10;

    QString key;    ///< "I" and the kind's number: "I12"
    QImage picture; ///< null where the kind has none or it cannot be read
    QString tag;    ///< the symbol in SymbolLength characters, then the kind's name

    QString symbol() const;
    QString name() const { return tag.mid(SymbolLength); }
};

/// The host's event kinds (birth, baptism, death …) in the current language, by their keys.
class Ereignisarten {
public:
    Ereignisarten(const host::Host &host, dao::Engine &engine) : m_host(host), m_engine(engine) {}

    /// Fills the list anew, by ascending numbers. Throws the engine's Error where the database or the language's table
    /// is missing or holds no row; the list is empty then.
    void ereignis_art_laden();

    const std::vector<EventImage> &images() const { return m_images; }
    /// Null where there is none of this key.
    const EventImage *find(const QString &key) const;
    /// Keys whose picture is there but cannot be read.
    const QStringList &unreadable() const { return m_unreadable; }

private:
    const host::Host &m_host;
    dao::Engine &m_engine;
    std::vector<EventImage> m_images;
    QStringList m_unreadable;
};

/// The picture in an OLE field: a file of one of Qt's formats (BMP, ICO, PNG, JPEG …), bare or behind the header of an
/// embedded object. Null where there is none, or one larger than an icon can be (2048 pixels a side).
QImage pictureFromOle(QByteArrayView value);

} // namespace kalvenor::language
