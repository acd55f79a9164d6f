// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/icons.h"

#include <cstdint>

namespace kalvenor::demo {

namespace {

// clang-format off
constexpr EventKind Kinds[] = {
    {1, u"*", u"Geburt", u"Birth", u"*",
     "................"
     ".......bb......."
     ".......bb......."
     "...b...bb...b..."
     "....b..bb..b...."
     ".....b.bb.b....."
     "......bbbb......"
     ".bbbbbbbbbbbbbb."
     ".bbbbbbbbbbbbbb."
     "......bbbb......"
     ".....b.bb.b....."
     "....b..bb..b...."
     "...b...bb...b..."
     ".......bb......."
     ".......bb......."
     "................"},
    {2, u"~", u"Taufe", u"Baptism", u"~",
     "................"
     "................"
     "................"
     "................"
     ".bb......bb....."
     ".bbbb..bbbbbb..."
     "...bbbbbb..bbbb."
     ".....bb......bb."
     "................"
     ".bb......bb....."
     ".bbbb..bbbbbb..."
     "...bbbbbb..bbbb."
     ".....bb......bb."
     "................"
     "................"
     "................"},
    {3, u"Konf.", u"Konfirmation", u"Confirmation", u"conf.",
     "................"
     "................"
     "...##########..."
     "...#........#..."
     "...#...rr...#..."
     "...#...rr...#..."
     "...#.rrrrrr.#..."
     "...#...rr...#..."
     "...#...rr...#..."
     "...#...rr...#..."
     "...#...rr...#..."
     "...#...rr...#..."
     "...#........#..."
     "...##########..."
     "................"
     "................"},
    {4, u"o", u"Verlobung", u"Engagement", u"o",
     "................"
     "......rrrr......"
     "......rrrr......"
     "......rrrr......"
     ".....gggggg....."
     "....ggg..ggg...."
     "...gg......gg..."
     "...gg......gg..."
     "...g........g..."
     "...g........g..."
     "...gg......gg..."
     "...gg......gg..."
     "....ggg..ggg...."
     ".....gggggg....."
     "................"
     "................"},
    {5, u"oo", u"Heirat", u"Marriage", u"oo",
     "................"
     "................"
     "................"
     "................"
     "...gggggggggg..."
     "..gggggggggggg.."
     ".gg...gggg...gg."
     ".gg...gggg...gg."
     ".gg...gggg...gg."
     ".gg...gggg...gg."
     ".gg...gggg...gg."
     "..gggggggggggg.."
     "...gggggggggg..."
     "................"
     "................"
     "................"},
    {6, u"o|o", u"Scheidung", u"Divorce", u"o|o",
     "................"
     "................"
     ".......rr......."
     ".......rr......."
     ".......rr......."
     "...gg..rr..gg..."
     ".ggggggrrgggggg."
     ".g....grrg....g."
     ".g....grrg....g."
     ".g....grrg....g."
     ".ggggggrrgggggg."
     "...gg..rr..gg..."
     ".......rr......."
     ".......rr......."
     "................"
     "................"},
    {7, u"+", u"Tod", u"Death", u"+",
     "................"
     ".......##......."
     ".......##......."
     ".......##......."
     "...##########..."
     "...##########..."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     ".......##......."
     "................"},
    {8, u"[]", u"Begräbnis", u"Burial", u"[]",
     "................"
     "................"
     "................"
     "..############.."
     "..#..........#.."
     "..#.########.#.."
     "..#.#..##..#.#.."
     "..#.#.####.#.#.."
     "..#.#..##..#.#.."
     "..#.#..##..#.#.."
     "..#.#..##..#.#.."
     "..#.########.#.."
     "..#..........#.."
     "..############.."
     "................"
     "................"},
    {9, u"Einäsch.", u"Einäscherung", u"Cremation", u"crem.",
     "................"
     "........r......."
     ".......r........"
     ".......r.r......"
     "......r..r......"
     ".....r....r....."
     ".....r.rr.r....."
     ".....r.rr.r....."
     "......r..r......"
     "................"
     ".....######....."
     ".....#....#....."
     "....#.....#....."
     "....#......#...."
     "....########...."
     "................"},
    {10, u"Beruf", u"Beruf", u"Occupation", u"occ.",
     "................"
     "................"
     "........######.."
     "........######.."
     "........######.."
     "........######.."
     "..........####.."
     ".........#.###.."
     "........#.#....."
     ".......#.#......"
     "......#.#......."
     ".....#.#........"
     "....#.#........."
     "...#.#.........."
     "....#..........."
     "................"},
    {11, u"Wohnort", u"Wohnort", u"Residence", u"res.",
     "................"
     "................"
     ".......rr......."
     "......r..r......"
     ".....r....r....."
     "....r......r...."
     "...r........r..."
     "..r..........r.."
     ".r.##########.r."
     "...#........#..."
     "...#...##...#..."
     "...#...##...#..."
     "...#...##...#..."
     "...#...##...#..."
     "...##########..."
     "................"},
    {12, u"ausgew.", u"Auswanderung", u"Emigration", u"emigr.",
     "................"
     "................"
     ".......#........"
     ".......#b......."
     ".......#bb......"
     ".......#bbb....."
     ".......#bbbb...."
     ".......#bbbbb..."
     ".......#bbbbb..."
     ".......#........"
     ".......#........"
     "..############.."
     "...##########..."
     "....########...."
     "................"
     "................"},
    {13, u"Mil.", u"Militärdienst", u"Military service", u"mil.",
     "................"
     "................"
     "..#..........#.."
     "...#........#..."
     "....#......#...."
     ".....#....#....."
     "......#..#......"
     ".......##......."
     ".......##......."
     "......#..#......"
     "..r..#....#..r.."
     "...r#......#r..."
     "...#r......r#..."
     "..#..r....r..#.."
     "................"
     "................"},
    {14, u"Schule", u"Schule und Ausbildung", u"Education", u"edu.",
     "................"
     "................"
     "................"
     ".##############."
     ".#.....##.....#."
     ".#.bbb.##.bbb.#."
     ".#.....##.....#."
     ".#.bbb.##.bbb.#."
     ".#.....##.....#."
     ".#.bbb.##.bbb.#."
     ".#.....##.....#."
     ".#.....##.....#."
     ".##############."
     "................"
     "................"
     "................"},
    {15, u"Test.", u"Testament", u"Last will", u"will",
     "................"
     "...##########..."
     "...#........#..."
     "...#........#..."
     "...#.bbbbbb.#..."
     "...#........#..."
     "...#.bbbbbb.#..."
     "...#........#..."
     "...#.bbbbbb.#..."
     "...#........#..."
     "...#........#..."
     "...#....rrr.#..."
     "...#....rrr.#..."
     "...#........#..."
     "...##########..."
     "................"},
};
// clang-format on

constexpr int Side = 16;
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

struct Colour {
    char blue;
    char green;
    char red;
};

Colour colourOf(char letter)
{
    switch (letter) {
    case '#':
        return {0x20, 0x20, 0x20};
    case 'r':
        return {0x30, 0x30, char(0xc0)};
    case 'b':
        return {char(0xb0), 0x60, 0x20};
    case 'g':
        return {0x20, char(0x90), char(0xb0)};
    default:
        return {char(0xff), char(0xff), char(0xff)};
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
    constexpr std::uint32_t size = HeaderSize + Side * Side * 3;
    QByteArray bytes("BM");
    append32(bytes, size);
    append32(bytes, 0);
    append32(bytes, HeaderSize);
    append32(bytes, 40);
    append32(bytes, Side);
    append32(bytes, Side);
    append16(bytes, 1);
    append16(bytes, 24);
    for (const std::uint32_t value : {0u, size - HeaderSize, 2835u, 2835u, 0u, 0u})
        append32(bytes, value);
    for (int row = Side - 1; row >= 0; --row) {
        for (int x = 0; x < Side; ++x) {
            const Colour colour = colourOf(kind.picture[row * Side + x]);
            bytes.append(colour.blue).append(colour.green).append(colour.red);
        }
    }
    return bytes;
}

} // namespace kalvenor::demo
