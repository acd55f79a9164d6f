// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/options/statistik.h"
#include <optional>
#include <QByteArray>
#include <QString>

namespace kalvenor::app {

/// What was said of a statistic on the command line; it goes before what settings or a template say.
struct StatistikWords {
    std::optional<QString> titel;
    std::optional<QByteArray> rtf;
    QString introductionFile; ///< native path of what `rtf` was read from
    std::optional<int> grafiktyp;
    std::optional<bool> legende, nachGeburtsjahr;
    std::optional<statistics::GeschlechtAlter> geschlechtalter;

    void applyTo(statistics::Statistik &statistik) const;
};

/// A path as it was typed, native and absolute.
QString absoluteNative(const QString &path);

} // namespace kalvenor::app
