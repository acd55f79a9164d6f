// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/about/infoform.h"

#include "demo/host/icons.h"
#include "language/texts.h"
#include "platform/basic/version.h"
#include "support/errors.h"
#include <gtest/gtest.h>
#include <QBuffer>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

using namespace kalvenor;
using namespace kalvenor::language;

namespace {

QByteArray picture(const char *format)
{
    QImage image(5, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

struct Kind {
    int index;
    const char *symbol, *name;
    QByteArray icon;
};

struct EventKinds : testing::Test, test::Texts {
    EventKinds() : Texts({{21105, "Altersstatistik", "Age statistic"}}, "English")
    {
        host.Hostverzeichnis = basic::windowsPath(folder.path());
    }
    void write(const std::vector<Kind> &rows)
    {
        using jet::ColumnType;
        jet::Creator creator;
        auto &table = creator.addTable("English", {{.name = "Index"},
                                                   {.name = "txtzeichen", .type = ColumnType::Text, .length = 20},
                                                   {.name = "Art", .type = ColumnType::Text, .length = 60},
                                                   {.name = "Icon_Druck", .type = ColumnType::Ole}});
        for (const Kind &row : rows)
            table.addRow({row.index, QString(row.symbol), QString(row.name),
                          row.icon.isEmpty() ? jet::NewValue() : jet::NewValue(row.icon)});
        creator.write(folder.filePath("Ereignis.mdb"));
    }
    Ereignisarten kinds{host, engine};
};

} // namespace

TEST_F(EventKinds, AreLoadedByNumber)
{
    const QByteArray oleHeader = QByteArray::fromHex("151c2f000200000007000e00140021000000") + "Bitmap Image" + '\0';
    write({{12, "*", "Birth", picture("BMP")},
           {7, "Baptism in church", "Baptism", oleHeader + picture("PNG")},
           {3, "1234567890", "Death", "BM is no picture"},
           {1, "", "", {}},
           {20, "o", "Burial", picture("JPEG")},
           {21, "x", "Icon", picture("ICO")},
           {22, "x", "Cut", picture("BMP").left(30)}});
    kinds.ereignis_art_laden();
    const struct {
        const char *key, *tag;
        bool hasPicture;
    } rows[] = {
        {"I1", "          ", false},      {"I3", "1234567890Death", false},  {"I7", "Baptism inBaptism", true},
        {"I12", "*         Birth", true}, {"I20", "o         Burial", true}, {"I21", "x         Icon", true},
        {"I22", "x         Cut", false},
    };
    ASSERT_EQ(kinds.images().size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const EventImage &image = kinds.images()[i];
        EXPECT_EQ(image.key, rows[i].key);
        EXPECT_EQ(image.tag, rows[i].tag);
        EXPECT_EQ(image.picture.isNull(), !rows[i].hasPicture) << rows[i].key;
        if (rows[i].hasPicture) {
            EXPECT_EQ(image.picture.size(), QSize(5, 4));
        }
    }
    EXPECT_EQ(kinds.unreadable(), (QStringList{"I3", "I22"}));
    ASSERT_NE(kinds.find("I12"), nullptr);
    EXPECT_EQ(kinds.find("I12")->symbol() + kinds.find("I12")->name(), "*Birth");
    EXPECT_EQ(kinds.find("I2"), nullptr);
    kinds.ereignis_art_laden();
    EXPECT_EQ(kinds.images().size(), std::size(rows)) << "anew, not once more";
}

TEST_F(EventKinds, AreNoneWhereTheDatabaseFails)
{
    write({{1, "*", "Birth", {}}});
    kinds.ereignis_art_laden();
    const auto expectError = [&](basic::ErrorKind kind) {
        EXPECT_EQ(test::kindOf([&] { kinds.ereignis_art_laden(); }), kind);
        EXPECT_TRUE(kinds.images().empty());
    };
    write({});
    expectError(basic::ErrorKind::NoCurrentRow);
    host.Sprache = "Suomi";
    expectError(basic::ErrorKind::TableNotFound);
    QFile::remove(folder.filePath("Ereignis.mdb"));
    expectError(basic::ErrorKind::FileNotFound);
    EXPECT_NE(Infoform(host, module, kinds).findChild<QLabel *>("Zeichenfehler"), nullptr);
}

TEST_F(EventKinds, StandInTheAboutBox)
{
    write({{1, "*", "Birth", demo::iconBitmap(demo::eventKinds()[0])}, {2, "+", "Death", {}}});
    Infoform form(host, module, kinds);
    const auto *list = form.findChild<QTreeWidget *>("Zeichen");
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->topLevelItemCount(), 2);
    EXPECT_FALSE(list->topLevelItem(0)->icon(0).isNull());
    EXPECT_EQ(list->topLevelItem(1)->text(2), "Death");
    const QStringList labels = {"Kalvenor", "Version: " KALVENOR_VERSION, "Age statistic",
                                basic::versionRecord().legalCopyright};
    for (int i = 0; i < labels.size(); ++i)
        EXPECT_EQ(form.findChild<QLabel *>(QString("Label_%1").arg(i))->text(), labels[i]);
    EXPECT_FALSE(form.findChild<QLabel *>("Infopic")->pixmap().isNull());
    form.show();
    form.findChild<QPushButton *>("OK")->click();
    EXPECT_FALSE(form.isVisible());
}
