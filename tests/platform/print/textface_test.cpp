// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/textface.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

TextFace mono()
{
    return TextFace({.family = u"Courier New"_s, .pointSize = 10}); // each character 0.6 em = 120 twips
}

TEST(TextFace, Wraps)
{
    const TextFace face = mono();
    const double em = face.width(u"x");
    const struct {
        QString text;
        int columns;
        QStringList lines;
    } cases[] = {
        {u""_s, 5, {u""_s}},
        {u"abc"_s, 3, {u"abc"_s}},
        {u"abc   "_s, 3, {u"abc"_s}},
        {u"abc def"_s, 7, {u"abc def"_s}},
        {u"abc def"_s, 6, {u"abc"_s, u"def"_s}},
        {u"abc def"_s, 3, {u"abc"_s, u"def"_s}},
        {u"abcdefgh"_s, 3, {u"abc"_s, u"def"_s, u"gh"_s}},
        {u"a bcdefgh"_s, 4, {u"a"_s, u"bcde"_s, u"fgh"_s}},
        {u"Müller-Lüdenscheid"_s, 12, {u"Müller-"_s, u"Lüdenscheid"_s}},
        {u"ab\n\ncd"_s, 5, {u"ab"_s, u""_s, u"cd"_s}},
        {u"ab\r\ncd\re"_s, 5, {u"ab"_s, u"cd"_s, u"e"_s}},
        {u"a\tb"_s, 9, {u"a    b"_s}},
        {u"abc"_s, 0, {u"a"_s, u"b"_s, u"c"_s}},
        {u"e\u0301e\u0301 e\u0301"_s, 3, {u"e\u0301e\u0301"_s, u"e\u0301"_s}}, // shaped by Qt
    };
    for (const auto &c : cases)
        EXPECT_EQ(face.wrapped(c.text, c.columns * em + 1), c.lines) << qPrintable(c.text);
}

TEST(TextFace, Elides)
{
    const TextFace face = mono();
    const double em = face.width(u"x");
    const struct {
        QString text;
        int columns;
        QString line;
    } cases[] = {
        {u"abc"_s, 3, u"abc"_s},  {u"abcd"_s, 3, u"ab…"_s}, {u"ab cdef"_s, 4, u"ab…"_s},
        {u"a\nb"_s, 3, u"a b"_s}, {u"abc"_s, 0, u"…"_s},    {u""_s, 0, u""_s},
    };
    for (const auto &c : cases)
        EXPECT_EQ(face.elided(c.text, c.columns * em + 1), c.line) << qPrintable(c.text);
}

// The right edge of the ink on a screen of 144 dpi, in twips.
double inkEnd(TextFace &face, const QString &text)
{
    QImage image(1200, 60, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(0.1, 0.1);
    face.draw(painter, QPointF(0, 400), text, face.width(text));
    painter.end();
    for (int x = image.width() - 1; x >= 0; --x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) < 128)
                return (x + 1) * 10.0;
        }
    }
    return 0;
}

TEST(TextFace, PaintsAsWideAsItMeasures)
{
    TextFace plain({.pointSize = 12});
    TextFace ruled({.pointSize = 12, .bold = true, .italic = true, .underline = true});
    for (const QString &text :
         {u"Hohenstaufen, AVA Toffee Wilhelm"_s, u"Дмитрий Ελένη Łódź – €"_s, u"Cafe\u0301 mit Akzent e\u0301H"_s}) {
        EXPECT_NEAR(inkEnd(plain, text), plain.width(text), 40) << qPrintable(text);
        EXPECT_NEAR(inkEnd(ruled, text), ruled.width(text), 40) << qPrintable(text);
    }
}

} // namespace
} // namespace kalvenor::print
