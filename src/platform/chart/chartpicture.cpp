// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/error.h"
#include "platform/basic/file.h"
#include "platform/chart/chart.h"
#include "platform/chart/chartdrawing.h"

#include <algorithm>
#include <cmath>
#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QSvgGenerator>

namespace kalvenor {
namespace {

constexpr double drawingDpi = 96; // a unit of the drawing is 1/96 inch
constexpr int largestSide = 20000;
constexpr double metersPerInch = 0.0254;

double heldDpi(double dpi)
{
    return std::isnan(dpi) ? drawingDpi : std::clamp(dpi, 24.0, 2400.0);
}

bool possible(QSize pixels)
{
    return !pixels.isEmpty() && std::max(pixels.width(), pixels.height()) <= largestSide;
}

ChartDrawing paperDrawing(const ChartTable &table, const ChartLook &look, QSize pixels, double dpi)
{
    return {table, look, QSizeF(pixels) * (drawingDpi / dpi), paperStyle()};
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
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(static_cast<int>(drawingDpi));
    const QSizeF size = QSizeF(pixels) * (drawingDpi / dpi);
    generator.setSize(size.toSize());
    generator.setViewBox(QRectF(QPointF(), size));
    QPainter painter(&generator);
    paperDrawing(table, look, pixels, dpi).paint(painter, QRectF(QPointF(), size));
    painter.end();
    return bytes;
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
    const int perMeter = static_cast<int>(std::lround(dpi / metersPerInch));
    image.setDotsPerMeterX(perMeter);
    image.setDotsPerMeterY(perMeter);
    return image;
}

void writeChart(const ChartTable &table, const ChartLook &look, QSize pixels, const QString &nativeFile, int quality,
                double dpi)
{
    const QString ending = QFileInfo(nativeFile).suffix().toLower();
    const bool jpeg = ending == QLatin1String("jpg") || ending == QLatin1String("jpeg");
    if (!jpeg && ending != QLatin1String("png") && ending != QLatin1String("svg"))
        throw Error(ErrorKind::Refused, nativeFile,
                    QStringLiteral("A chart can be saved as .png, .jpg, .jpeg or .svg. Choose one of these endings."));
    if (!possible(pixels))
        throw Error(ErrorKind::Refused, nativeFile,
                    QStringLiteral("A picture cannot be %1 by %2 pixels large. Choose 1 to %3 for each side.")
                        .arg(pixels.width())
                        .arg(pixels.height())
                        .arg(largestSide));
    const QByteArray bytes = ending == QLatin1String("svg")
                                 ? svgBytes(table, look, pixels, heldDpi(dpi))
                                 : pictureBytes(chartImage(table, look, pixels, dpi), jpeg ? "jpg" : "png", quality);
    if (bytes.isEmpty())
        throw Error(ErrorKind::WriteFailed, nativeFile,
                    QStringLiteral("There is not enough memory for a picture of this size. Choose a smaller one."));
    QString reason;
    if (!replaceFileSafely(nativeFile, bytes, &reason))
        throw Error(ErrorKind::WriteFailed, nativeFile,
                    QStringLiteral("The picture cannot be written: %1. Choose another folder or name.").arg(reason));
}

} // namespace kalvenor
