// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/introductionfile.h"

#include "platform/basic/error.h"
#include "platform/richtext/rtfreader.h"
#include <QFile>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

QByteArray readIntroduction(const QString &nativeFile)
{
    QFile file(nativeFile);
    QByteArray rtf;
    if (file.open(QIODevice::ReadOnly))
        rtf = file.read(richtext::LargestRtfFile + 1);
    if (file.error() != QFileDevice::NoError)
        throw basic::Error(basic::Fault::IntroductionNotRead, {.file = nativeFile}, {file.errorString()});
    if (rtf.size() > richtext::LargestRtfFile)
        throw basic::Error(basic::Fault::IntroductionTooLarge, {.file = nativeFile},
                           {richtext::LargestRtfFile / (1024 * 1024)});
    return rtf;
}

} // namespace kalvenor::app
