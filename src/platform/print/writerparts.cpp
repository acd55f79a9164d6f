// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/writerparts.h"

#include "platform/print/textface.h"

#include <algorithm>
#include <QBuffer>

namespace kalvenor::print {

FontKind fontKind(const QString &family)
{
    const auto isAmong = [&](std::initializer_list<const char *> parts) {
        return std::any_of(parts.begin(), parts.end(),
                           [&](const char *part) { return family.contains(QLatin1String(part), Qt::CaseInsensitive); });
    };
    if (isAmong({"courier", "mono", "consol", "typewriter"}))
        return FontKind::Fixed;
    const bool serif = isAmong({"times", "georgia", "garamond", "palatino", "book", "cambria", "roman", "serif"});
    return serif && !isAmong({"sans"}) ? FontKind::Serif : FontKind::Sans;
}

QRectF textArea(const PrintDocument &document)
{
    const auto lineHeight = [&](StyleId style) {
        return TextFace(document.styles().at(static_cast<std::size_t>(style))).lineHeight();
    };
    return textArea(document, lineHeight(document.header.style), lineHeight(document.footer.style));
}

QByteArray pngBytes(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace kalvenor::print
