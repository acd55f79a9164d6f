// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/about/infoform.h"

#include "host/windowplace.h"
#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/basic/version.h"
#include "platform/desktop/appicon.h"
#include <array>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

constexpr int PictureSide = 64;

struct Library {
    QString name;
    const char *licence;
    const char *address;
};

QString libraryList()
{
    const std::array<Library, 4> libraries = {
        Library{u"Qt %1"_s.arg(QLatin1String(qVersion())), "GNU LGPL 3", "https://www.qt.io"},
        Library{u"SQLite 3"_s, "Public Domain", "https://www.sqlite.org"},
        Library{u"CLI11"_s, "BSD 3-Clause", "https://github.com/CLIUtils/CLI11"},
        Library{u"Liberation Fonts"_s, "SIL OFL 1.1", "https://github.com/liberationfonts"},
    };
    QString rows;
    for (const Library &library : libraries)
        rows += u"<tr><td><b>%1</b>&nbsp;&nbsp;&nbsp;</td><td>%2&nbsp;&nbsp;&nbsp;</td>"
                "<td><a href=\"%3\">%3</a></td></tr>"_s.arg(library.name, QLatin1String(library.licence),
                                                            QLatin1String(library.address));
    return u"<table cellpadding=\"3\">%1</table>"_s.arg(rows);
}

} // namespace

Infoform::Infoform(const host::Host &host, Sprachmodul &texts, Ereignisarten &kinds, QWidget *parent) : QDialog(parent)
{
    setObjectName(u"Infoform"_s);
    setDesignText(this, Text::AboutKalvenor);
    setWindowIcon(desktop::applicationIcon());
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(u"Tabs"_s);
    tabs->addTab(makeAbout(), basic::versionRecord().productName);
    tabs->addTab(makeLegend(kinds, texts), {});
    tabs->addTab(makeLibraries(), {});
    setDesignTab(tabs, 1, Text::EventSymbols);
    setDesignTab(tabs, 2, Text::LibrariesUsed);
    auto *ok = new QPushButton(this);
    ok->setObjectName(u"OK"_s);
    setDesignText(ok, Text::Ok);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *column = new QVBoxLayout(this);
    column->addWidget(tabs, 1);
    column->addWidget(ok, 0, Qt::AlignRight);
    formuebersetzen(*this, texts, host);
    giveAccessKeys(*this);
    turnByCtrlTab(*tabs);
    unsetCursor();
    new host::WindowPlace(*this, host, u"Info"_s, sizeHint());
    ok->setFocus();
}

QWidget *Infoform::makeAbout()
{
    const basic::VersionRecord &version = basic::versionRecord();
    auto *page = new QWidget(this);
    auto *picture = new QLabel(page);
    picture->setObjectName(u"Infopic"_s);
    picture->setPixmap(windowIcon().pixmap(QSize(PictureSide, PictureSide), devicePixelRatioF()));
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(18, 18, 18, 18);
    grid->setHorizontalSpacing(18);
    grid->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    // The description and the licence are translated, name, number and holder are not.
    const std::array<std::pair<QString, Text>, 5> captions = {
        {{version.productName, Text::None},
         {u"Version: %1.%2.%3"_s.arg(version.majorNumber).arg(version.minorNumber).arg(version.revision), Text::None},
         {version.fileDescription, Text::AboutDescription},
         {version.legalCopyright, Text::None},
         {{}, Text::AboutLicence}}};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto *label = new QLabel(captions[i].first, page);
        const auto row = static_cast<int>(i);
        label->setObjectName(i < 4 ? u"Label_%1"_s.arg(row) : u"Lizenz"_s);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        setDesignText(label, captions[i].second);
        if (i == 0) {
            QFont large = label->font();
            large.setPointSizeF(large.pointSizeF() * 1.8);
            large.setBold(true);
            label->setFont(large);
        }
        grid->addWidget(label, row, 1);
    }
    grid->setRowStretch(static_cast<int>(captions.size()), 1);
    return page;
}

QWidget *Infoform::makeLegend(Ereignisarten &kinds, Sprachmodul &texts)
{
    QString reason;
    try {
        if (kinds.images().empty())
            kinds.ereignis_art_laden();
    } catch (const basic::Error &error) {
        reason = errorMessage(texts, error);
    }
    if (!reason.isEmpty()) {
        auto *label = new QLabel(reason, this);
        label->setObjectName(u"Zeichenfehler"_s);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMargin(18);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        return label;
    }
    auto *list = new QTreeWidget(this);
    list->setObjectName(u"Zeichen"_s);
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFrameShape(QFrame::NoFrame);
    list->setIconSize({20, 20});
    list->setColumnCount(3);
    list->setMinimumHeight(300);
    setDesignText(list, Text::EventSymbols);
    setDesignHeading(list->header(), 0, Text::EventPicture);
    setDesignHeading(list->header(), 1, Text::EventSymbol);
    setDesignHeading(list->header(), 2, Text::EventName);
    for (const EventImage &kind : kinds.images()) {
        auto *item = new QTreeWidgetItem(list, {{}, kind.symbol(), kind.name()});
        if (!kind.picture.isNull())
            item->setIcon(0, QIcon(QPixmap::fromImage(kind.picture)));
    }
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return list;
}

QWidget *Infoform::makeLibraries()
{
    auto *label = new QLabel(libraryList(), this);
    label->setObjectName(u"Bibliotheken"_s);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setOpenExternalLinks(true);
    label->setMargin(12);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

} // namespace kalvenor::language
