// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/svgcanvas.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double UnitInMillimetres = 25.4 / 96;

QString number(double value)
{
    return QString::number(std::round(value * 1000) / 1000 + 0.0, 'g', 9);
}

QString point(double x, double y)
{
    return number(x) + u' ' + number(y);
}

QString pathData(const QPainterPath &path)
{
    QString data;
    QPointF start;
    QPointF last;
    const auto close = [&] {
        if (!data.isEmpty() && last == start)
            data += u'Z'; // joins the ends, too
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.type == QPainterPath::MoveToElement) {
            close();
            start = element;
        }
        // What follows a curve's first point are its other two.
        constexpr QLatin1String Letters[] = {"M"_L1, "L"_L1, "C"_L1, " "_L1};
        data += Letters[element.type] + point(element.x, element.y);
        last = element;
    }
    close();
    return data;
}

/// XML cannot hold control characters, nor halves of a character.
QString sound(const QString &text)
{
    QString kept;
    for (const char32_t c : text.toUcs4()) {
        if (c == U'\n' || (c >= U' ' && c != 0xFFFE && c != 0xFFFF && !QChar::isSurrogate(c)))
            kept += QChar::fromUcs4(c);
    }
    return kept;
}

void writeColor(QXmlStreamWriter &xml, const QString &what, const QColor &color)
{
    xml.writeAttribute(what, color.isValid() ? color.name() : u"none"_s);
    if (color.isValid() && color.alphaF() < 1)
        xml.writeAttribute(what + u"-opacity"_s, number(color.alphaF()));
}

} // namespace

SvgCanvas::SvgCanvas(QSizeF size, const SvgWords &words) : m_xml(&m_bytes)
{
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(1);
    m_xml.writeStartDocument();
    m_xml.writeStartElement(u"svg"_s);
    m_xml.writeDefaultNamespace(u"http://www.w3.org/2000/svg"_s);
    m_xml.writeAttribute(u"width"_s, number(size.width() * UnitInMillimetres) + u"mm"_s);
    m_xml.writeAttribute(u"height"_s, number(size.height() * UnitInMillimetres) + u"mm"_s);
    m_xml.writeAttribute(u"viewBox"_s, u"0 0 "_s + point(size.width(), size.height()));
    m_xml.writeAttribute(u"xml:lang"_s, words.language);
    m_xml.writeAttribute(u"role"_s, u"img"_s);
    if (!words.title.isEmpty())
        m_xml.writeTextElement(u"title"_s, sound(words.title));
    m_xml.writeTextElement(u"desc"_s, sound(words.description));
}

void SvgCanvas::shape(const QPainterPath &path, const QColor &fill, const QPen &pen)
{
    m_xml.writeEmptyElement(u"path"_s);
    m_xml.writeAttribute(u"d"_s, pathData(path));
    writeColor(m_xml, u"fill"_s, fill);
    if (pen.style() == Qt::NoPen)
        return;
    writeColor(m_xml, u"stroke"_s, pen.color());
    m_xml.writeAttribute(u"stroke-width"_s, number(pen.widthF()));
    if (pen.capStyle() == Qt::SquareCap)
        m_xml.writeAttribute(u"stroke-linecap"_s, u"square"_s);
    if (pen.joinStyle() == Qt::RoundJoin)
        m_xml.writeAttribute(u"stroke-linejoin"_s, u"round"_s);
    QStringList dashes;
    for (const double dash : pen.dashPattern())
        dashes << number(dash * pen.widthF());
    if (!dashes.isEmpty())
        m_xml.writeAttribute(u"stroke-dasharray"_s, dashes.join(u' '));
}

void SvgCanvas::text(const PlacedText &text, const QColor &color)
{
    const QFontMetricsF metrics(text.font);
    const QStringList lines = text.block.text.split(u'\n');
    const auto more = static_cast<double>(lines.size() - 1);
    double baseline = metrics.ascent() - (more * metrics.lineSpacing() + metrics.height()) / 2;
    for (const QString &line : lines) { // each a text of its own, so that it is found and copied with its words alone
        m_xml.writeStartElement(u"text"_s);
        m_xml.writeAttribute(u"transform"_s, u"translate(%1)"_s.arg(point(text.centre.x(), text.centre.y())) +
                                                 (text.angle == 0 ? QString() : u" rotate(%1)"_s.arg(text.angle)));
        m_xml.writeAttribute(u"y"_s, number(baseline));
        m_xml.writeAttribute(u"text-anchor"_s, u"middle"_s);
        m_xml.writeAttribute(u"font-family"_s, text.font.family());
        m_xml.writeAttribute(u"font-size"_s, number(text.font.pixelSize()));
        if (text.font.bold())
            m_xml.writeAttribute(u"font-weight"_s, u"bold"_s);
        writeColor(m_xml, u"fill"_s, color);
        // As long as it was measured, whatever font stands in for a missing one.
        m_xml.writeAttribute(u"textLength"_s, number(metrics.horizontalAdvance(line)));
        m_xml.writeAttribute(u"lengthAdjust"_s, u"spacingAndGlyphs"_s);
        m_xml.writeCharacters(sound(line));
        m_xml.writeEndElement();
        baseline += metrics.lineSpacing();
    }
}

QByteArray SvgCanvas::finished()
{
    m_xml.writeEndDocument();
    return m_bytes;
}

} // namespace kalvenor::chart
