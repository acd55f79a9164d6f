// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartpicture.h"

#include "platform/basic/error.h"
#include "platform/chart/chartdrawing.h"
#include "platform/chart/svgcanvas.h"
#include "platform/storage/replacement.h"

#include <algorithm>
#include <cmath>
#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double DrawingDpi = 96; // a unit of the drawing is 1/96 inch
constexpr int LargestSide = 20000;
constexpr double MetersPerInch = 0.0254;

double heldDpi(double dpi)
{
    return std::isnan(dpi) ? DrawingDpi : std::clamp(dpi, 24.0, 2400.0);
}

bool possible(QSize pixels)
{
    return !pixels.isEmpty() && std::max(pixels.width(), pixels.height()) <= LargestSide;
}

ChartDrawing paperDrawing(const ChartTable &table, const ChartLook &look, QSize pixels, double dpi)
{
    return {table, look, QSizeF(pixels) * (DrawingDpi / dpi), paperStyle()};
}

QByteArray pictureBytes(const QImage &image, const char *format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    if (qstrcmp(format, "jpg") == 0)
        writer.setQuality(std::clamp(quality, 0, 100));
    return writer.write(image) ? bytes : QByteArray();
}

QByteArray svgBytes(const ChartTable &table, const ChartLook &look, QSize pixels, double dpi)
{
    SvgCanvas canvas(QSizeF(pixels) * (DrawingDpi / dpi),
                     {look.locale.bcp47Name(), look.title.simplified(), figuresText(table, look)});
    paperDrawing(table, look, pixels, dpi).draw(canvas);
    return canvas.finished();
}

} // namespace

QImage chartImage(const ChartTable &table, const ChartLook &look, QSize pixels, double dpi)
{
    if (!possible(pixels))
        return {};
    dpi = heldDpi(dpi);
    QImage image(pixels, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    image.fill(Qt::white);
    QPainter painter(&image);
    paperDrawing(table, look, pixels, dpi).paint(painter, QRectF(QPointF(), pixels));
    painter.end();
    const int perMeter = static_cast<int>(std::lround(dpi / MetersPerInch));
    image.setDotsPerMeterX(perMeter);
    image.setDotsPerMeterY(perMeter);
    return image;
}

void writeChart(const ChartTable &table, const ChartLook &look, QSize pixels, const QString &nativeFile, int quality,
                double dpi)
{
    const QString ending = QFileInfo(nativeFile).suffix().toLower();
    const bool jpeg = ending == "jpg"_L1 || ending == "jpeg"_L1;
    if (!jpeg && ending != "png"_L1 && ending != "svg"_L1)
        throw basic::Error(basic::Fault::ChartEnding, {.file = nativeFile});
    if (!possible(pixels))
        throw basic::Error(basic::Fault::PictureSize, {.file = nativeFile},
                           {pixels.width(), pixels.height(), LargestSide});
    const QByteArray bytes = ending == "svg"_L1
                                 ? svgBytes(table, look, pixels, heldDpi(dpi))
                                 : pictureBytes(chartImage(table, look, pixels, dpi), jpeg ? "jpg" : "png", quality);
    if (bytes.isEmpty())
        throw basic::Error(basic::Fault::PictureTooLarge, {.file = nativeFile});
    basic::Argument reason;
    if (!storage::replaceFileSafely(basic::NativePath(nativeFile), bytes, &reason))
        throw basic::Error(basic::Fault::PictureNotWritten, {.file = nativeFile}, {reason});
}

} // namespace kalvenor::chart
