// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/events/ereignisart.h"

#include "platform/basic/text.h"
#include <algorithm>
#include <array>
#include <QBuffer>
#include <QImageReader>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

constexpr int LargestSide = 2048;
/// The header of an embedded object (a form's own one, then that of [MS-OLEDS] 2.2.5) holds a few names.
constexpr qsizetype LongestHeader = 1024;

QImage readPicture(QByteArrayView file)
{
    QByteArray bytes = QByteArray::fromRawData(file.data(), file.size());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > LargestSide || size.height() > LargestSide)
        return {};
    const QImage picture = reader.read();
    return picture.width() > LargestSide || picture.height() > LargestSide ? QImage() : picture;
}

} // namespace

QImage pictureFromOle(QByteArrayView value)
{
    using namespace std::string_view_literals;
    // How the files begin: BMP, PNG, JPEG, GIF, ICO.
    static constexpr std::array beginnings = {"BM"sv, "\x89PNG\r\n"sv, "\xff\xd8\xff"sv, "GIF8"sv, "\0\0\1\0"sv};
    const auto whole = std::string_view(value.data(), static_cast<std::size_t>(value.size()));
    const qsizetype last = std::min(value.size(), LongestHeader);
    for (qsizetype start = 0; start < last; ++start) {
        const std::string_view rest = whole.substr(static_cast<std::size_t>(start));
        if (std::none_of(beginnings.begin(), beginnings.end(),
                         [rest](std::string_view beginning) { return rest.starts_with(beginning); }))
            continue;
        if (QImage picture = readPicture(value.sliced(start)); !picture.isNull())
            return picture;
    }
    return {};
}

QString EventImage::symbol() const
{
    return basic::trimBlanks(tag.left(SymbolLength));
}

void Ereignisarten::ereignis_art_laden()
{
    m_images.clear();
    m_unreadable.clear();
    const auto database = m_engine.openDatabase(m_host.native(m_host.Hostverzeichnis + u"\\Ereignis.mdb"_s));
    const auto close = qScopeGuard([&] { database->close(); });
    database->openTable(m_host.Sprache); // the query could not say that it is the table that is missing
    const auto kinds = database->openQuery(u"SELECT * FROM "_s + m_host.Sprache + u" ORDER BY Index;"_s);
    kinds->moveFirst();
    const int index = kinds->fieldIndex(u"Index"_s);
    const int symbol = kinds->fieldIndex(u"txtzeichen"_s);
    const int name = kinds->fieldIndex(u"Art"_s);
    const int icon = kinds->fieldIndex(u"Icon_Druck"_s);
    const QString blanks(EventImage::SymbolLength, u' ');
    std::vector<EventImage> images;
    for (kinds->value(index); !kinds->eof(); kinds->moveNext()) { // no row at all is the engine's error
        EventImage image{.key = u'I' + basic::trimBlanks(kinds->text(index)),
                         .picture = {},
                         .tag = (kinds->text(symbol) + blanks).left(EventImage::SymbolLength) + kinds->text(name)};
        const QByteArray bytes = kinds->value(icon).toByteArray();
        image.picture = pictureFromOle(bytes);
        if (image.picture.isNull() && !bytes.isEmpty())
            m_unreadable << image.key;
        images.push_back(std::move(image));
    }
    m_images = std::move(images);
}

const EventImage *Ereignisarten::find(const QString &key) const
{
    const auto found =
        std::find_if(m_images.begin(), m_images.end(), [&key](const EventImage &image) { return image.key == key; });
    return found == m_images.end() ? nullptr : &*found;
}

} // namespace kalvenor::language
