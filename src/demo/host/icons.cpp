// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/icons.h"

#include <cstdint>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr EventKind Kinds[] = {
    {1, u"*", u"Geburt", u"Birth", u"*",
     "b0000018001801188099005a003c07ffe7ffe03c005a009901188018001800000"},
    {2, u"~", u"Taufe", u"Baptism", u"~",
     "b0000000000000000606079f81f9e06060000606079f81f9e0606000000000000"},
    {3, u"Konf.", u"Konfirmation", u"Confirmation", u"conf.",
     "#000000001ff810081008100810081008100810081008100810081ff800000000"
     "r00000000000000000180018007e0018001800180018001800000000000000000"},
    {4, u"o", u"Verlobung", u"Engagement", u"o",
     "r000003c003c003c0000000000000000000000000000000000000000000000000"
     "g000000000000000007e00e701818181810081008181818180e7007e000000000"},
    {5, u"oo", u"Heirat", u"Marriage", u"oo",
     "g00000000000000001ff83ffc63c663c663c663c663c63ffc1ff8000000000000"},
    {6, u"o|o", u"Scheidung", u"Divorce", u"o|o",
     "r0000000001800180018001800180018001800180018001800180018000000000"
     "g0000000000000000000018187e7e4242424242427e7e18180000000000000000"},
    {7, u"+", u"Tod", u"Death", u"+",
     "#00000180018001801ff81ff80180018001800180018001800180018001800000"},
    {8, u"[]", u"Begräbnis", u"Burial", u"[]",
     "#0000000000003ffc20042ff429942bd42994299429942ff420043ffc00000000"},
    {9, u"Einäsch.", u"Einäscherung", u"Cremation", u"crem.",
     "#000000000000000000000000000000000000000007e00420082008100ff00000"
     "r00000080010001400240042005a005a002400000000000000000000000000000"},
    {10, u"Beruf", u"Beruf", u"Occupation", u"occ.",
     "#0000000000fc00fc00fc00fc003c005c00a00140028005000a00140008000000"},
    {11, u"Wohnort", u"Wohnort", u"Residence", u"res.",
     "#000000000000000000000000000000001ff8100811881188118811881ff80000"
     "r0000000001800240042008101008200440020000000000000000000000000000"},
    {12, u"ausgew.", u"Auswanderung", u"Emigration", u"emigr.",
     "#000000000100010001000100010001000100010001003ffc1ff80ff000000000"
     "b000000000000008000c000e000f000f800f80000000000000000000000000000"},
    {13, u"Mil.", u"Militärdienst", u"Military service", u"mil.",
     "#0000000020041008081004200240018001800240042008101008200400000000"
     "r0000000000000000000000000000000000000000200410080810042000000000"},
    {14, u"Schule", u"Schule und Ausbildung", u"Education", u"edu.",
     "#0000000000007ffe418241824182418241824182418241827ffe000000000000"
     "b000000000000000000001c3800001c3800001c38000000000000000000000000"},
    {15, u"Test.", u"Testament", u"Last will", u"will",
     "#00001ff81008100810081008100810081008100810081008100810081ff80000"
     "r0000000000000000000000000000000000000000000000e000e0000000000000"
     "b000000000000000007e0000007e0000007e00000000000000000000000000000"},
};
// clang-format on

constexpr int Side = 16;
constexpr int LayerLength = 1 + Side * Side / 4; // of EventKind::picture
constexpr int HeaderSize = 14 + 40;

void append16(QByteArray &bytes, std::uint32_t value)
{
    bytes.append(static_cast<char>(value & 0xff)).append(static_cast<char>(value >> 8 & 0xff));
}

void append32(QByteArray &bytes, std::uint32_t value)
{
    append16(bytes, value & 0xffff);
    append16(bytes, value >> 16);
}

/// Blue, green, red.
QByteArray colourOf(char letter)
{
    switch (letter) {
    case 'r':
        return "\x30\x30\xc0"_ba;
    case 'b':
        return "\xb0\x60\x20"_ba;
    case 'g':
        return "\x20\x90\xb0"_ba;
    default:
        return "\x20\x20\x20"_ba;
    }
}

} // namespace

std::span<const EventKind> eventKinds()
{
    return Kinds;
}

// Layout after Microsoft's documentation of BITMAPFILEHEADER and BITMAPINFOHEADER.
QByteArray iconBitmap(const EventKind &kind)
{
    QByteArray pixels(Side * Side * 3, '\xff'); // from the lowest row upwards
    for (QByteArrayView layers(kind.picture); !layers.isEmpty(); layers = layers.sliced(LayerLength)) {
        const QByteArray bits = QByteArray::fromHex(layers.sliced(1, LayerLength - 1).toByteArray());
        for (int i = 0; i < Side * Side; ++i) {
            if ((bits[i / 8] << i % 8 & 0x80) != 0)
                pixels.replace(((Side - 1 - i / Side) * Side + i % Side) * 3, 3, colourOf(layers.front()));
        }
    }
    QByteArray bytes("BM");
    append32(bytes, static_cast<std::uint32_t>(HeaderSize + pixels.size()));
    append32(bytes, 0);
    append32(bytes, HeaderSize);
    append32(bytes, 40);
    append32(bytes, Side);
    append32(bytes, Side);
    append16(bytes, 1);
    append16(bytes, 24);
    for (const std::uint32_t value : {0u, static_cast<std::uint32_t>(pixels.size()), 2835u, 2835u, 0u, 0u})
        append32(bytes, value);
    return bytes + pixels;
}

} // namespace kalvenor::demo
