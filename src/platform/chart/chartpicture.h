// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chart.h"

#include <QImage>

namespace kalvenor::chart {

/// The chart on white paper, opaque. The layout follows from the picture's size on paper (pixels / dpi), so that 96 and
/// 300 dpi give the same chart. Null for a size that cannot be (empty, or above 20000 pixels). `dpi` is held within 24
/// to 2400. Texts need a QGuiApplication; the platform "offscreen" will do.
QImage chartImage(const ChartTable &table, const ChartLook &look, QSize pixels, double dpi);

/// The same as a file, of the kind that its ending says: png, jpg, jpeg or svg. It is written beside and renamed, so
/// that a failure leaves an old file as it was. `quality` is of JPEG, 0 to 100. Throws Error(Refused) for another
/// ending or a size that cannot be, Error(WriteFailed) where the file cannot be written.
void writeChart(const ChartTable &table, const ChartLook &look, QSize pixels, const QString &nativeFile,
                int quality = 92, double dpi = 96);

} // namespace kalvenor::chart
