// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as rich text: they are read, and what is written from that is read and written the same again.
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtfwriter.h"
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <QGuiApplication>
#include <QTextDocument>

using namespace kalvenor::richtext;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    static const QGuiApplication application(*argc, *argv); // text documents ask it for a font
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QTextDocument document;
    readRtf(QByteArrayView(data, static_cast<qsizetype>(size)), document);
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    if (!readRtf(written, again).everythingShown() || writeRtf(again) != written)
        std::abort();
    return 0;
}
