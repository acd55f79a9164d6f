// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the picture of an event kind: none, or one no larger than an icon can be.
#include "language/events/ereignisart.h"
#include <cstdlib>
#include <QGuiApplication>
#include <QLoggingCategory>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    static const QGuiApplication application(*argc, *argv);      // it knows where the readers of formats lie
    QLoggingCategory::setFilterRules(QStringLiteral("*=false")); // they write a line for each damage
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QImage picture = kalvenor::language::pictureFromOle(QByteArrayView(data, static_cast<qsizetype>(size)));
    if (picture.width() > 2048 || picture.height() > 2048)
        std::abort();
    return 0;
}
