// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/textface.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

namespace kalvenor {
namespace {

TextFace mono()
{
    return TextFace({.family = u"Courier New"_qs, .pointSize = 10}); // each character 0.6 em = 120 twips
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
        {u""_qs, 5, {u""_qs}},
        {u"abc"_qs, 3, {u"abc"_qs}},
        {u"abc   "_qs, 3, {u"abc"_qs}},
        {u"abc def"_qs, 7, {u"abc def"_qs}},
        {u"abc def"_qs, 6, {u"abc"_qs, u"def"_qs}},
        {u"abc def"_qs, 3, {u"abc"_qs, u"def"_qs}},
        {u"abcdefgh"_qs, 3, {u"abc"_qs, u"def"_qs, u"gh"_qs}},
        {u"a bcdefgh"_qs, 4, {u"a"_qs, u"bcde"_qs, u"fgh"_qs}},
        {u"Müller-Lüdenscheid"_qs, 12, {u"Müller-"_qs, u"Lüdenscheid"_qs}},
        {u"ab\n\ncd"_qs, 5, {u"ab"_qs, u""_qs, u"cd"_qs}},
        {u"ab\r\ncd\re"_qs, 5, {u"ab"_qs, u"cd"_qs, u"e"_qs}},
        {u"a\tb"_qs, 9, {u"a    b"_qs}},
        {u"abc"_qs, 0, {u"a"_qs, u"b"_qs, u"c"_qs}},
        {u"e\u0301e\u0301 e\u0301"_qs, 3, {u"e\u0301e\u0301"_qs, u"e\u0301"_qs}}, // shaped by Qt
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
        {u"abc"_qs, 3, u"abc"_qs},  {u"abcd"_qs, 3, u"ab…"_qs}, {u"ab cdef"_qs, 4, u"ab…"_qs},
        {u"a\nb"_qs, 3, u"a b"_qs}, {u"abc"_qs, 0, u"…"_qs},    {u""_qs, 0, u""_qs},
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
         {u"Hohenstaufen, AVA Toffee Wilhelm"_qs, u"Дмитрий Ελένη Łódź – €"_qs, u"Cafe\u0301 mit Akzent e\u0301H"_qs}) {
        EXPECT_NEAR(inkEnd(plain, text), plain.width(text), 40) << qPrintable(text);
        EXPECT_NEAR(inkEnd(ruled, text), ruled.width(text), 40) << qPrintable(text);
    }
}

} // namespace
} // namespace kalvenor
