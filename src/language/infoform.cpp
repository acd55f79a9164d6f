// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/infoform.h"

#include "language/form.h"
#include "language/widgetform.h"
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
    const std::array<Library, 5> libraries = {
        Library{QStringLiteral("Qt %1").arg(QLatin1String(qVersion())), "GNU LGPL 3", "https://www.qt.io"},
        Library{QStringLiteral("Qt Charts %1").arg(QLatin1String(qVersion())), "GNU GPL 3", "https://www.qt.io"},
        Library{QStringLiteral("SQLite 3"), "Public Domain", "https://www.sqlite.org"},
        Library{QStringLiteral("CLI11"), "BSD 3-Clause", "https://github.com/CLIUtils/CLI11"},
        Library{QStringLiteral("Liberation Fonts"), "SIL OFL 1.1", "https://github.com/liberationfonts"},
    };
    QString rows;
    for (const Library &library : libraries)
        rows += QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;&nbsp;</td><td>%2&nbsp;&nbsp;&nbsp;</td>"
                               "<td><a href=\"%3\">%3</a></td></tr>")
                    .arg(library.name, QLatin1String(library.licence), QLatin1String(library.address));
    return QStringLiteral("<table cellpadding=\"3\">%1</table>").arg(rows);
}

} // namespace

Infoform::Infoform(const host::Host &host, Sprachmodul &texts, Ereignisarten &kinds, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Infoform"));
    setDesignText(this, QStringLiteral("21100Über Kalvenor"));
    setWindowIcon(applicationIcon());
    auto *tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("Tabs"));
    tabs->addTab(makeAbout(), versionRecord().productName);
    tabs->addTab(makeLegend(kinds), {});
    tabs->addTab(makeLibraries(), {});
    setDesignTab(tabs, 1, QStringLiteral("21101Zeichen der Ereignisse"));
    setDesignTab(tabs, 2, QStringLiteral("21102Verwendete Bibliotheken"));
    auto *ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("OK"));
    setDesignText(ok, QStringLiteral("21000OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *column = new QVBoxLayout(this);
    column->addWidget(tabs, 1);
    column->addWidget(ok, 0, Qt::AlignRight);
    formuebersetzen(*this, texts, host);
    unsetCursor();
    ok->setFocus();
}

QWidget *Infoform::makeAbout()
{
    const VersionRecord &version = versionRecord();
    auto *page = new QWidget(this);
    auto *picture = new QLabel(page);
    picture->setObjectName(QStringLiteral("Infopic"));
    picture->setPixmap(windowIcon().pixmap(QSize(PictureSide, PictureSide), devicePixelRatioF()));
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(18, 18, 18, 18);
    grid->setHorizontalSpacing(18);
    grid->addWidget(picture, 0, 0, 2, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    // The description and the licence are translated, name, number and holder are not.
    const std::array<QString, 5> captions = {
        version.productName,
        QStringLiteral("Version: %1.%2.%3").arg(version.majorNumber).arg(version.minorNumber).arg(version.revision),
        QStringLiteral("21105") + version.fileDescription, version.legalCopyright,
        QStringLiteral("21106Kalvenor ist freie Software unter der GNU General "
                       "Public License, Version 3 oder später.")};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto *label = new QLabel(page);
        const auto row = static_cast<int>(i);
        label->setObjectName(i < 4 ? QStringLiteral("Label_%1").arg(row) : QStringLiteral("Lizenz"));
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        setDesignText(label, captions[i]);
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

QWidget *Infoform::makeLegend(Ereignisarten &kinds)
{
    QString reason;
    try {
        if (kinds.images().empty())
            kinds.ereignis_art_laden();
    } catch (const Error &error) {
        reason = error.message();
    }
    if (!reason.isEmpty()) {
        auto *label = new QLabel(reason, this);
        label->setObjectName(QStringLiteral("Zeichenfehler"));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMargin(18);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        return label;
    }
    auto *list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("Zeichen"));
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFrameShape(QFrame::NoFrame);
    list->setIconSize({20, 20});
    list->setColumnCount(3);
    list->setMinimumHeight(300);
    setDesignText(list, QStringLiteral("21101Zeichen der Ereignisse"));
    setDesignHeading(list->header(), 0, QStringLiteral("21107Bild"));
    setDesignHeading(list->header(), 1, QStringLiteral("21108Zeichen"));
    setDesignHeading(list->header(), 2, QStringLiteral("21109Ereignis"));
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
    label->setObjectName(QStringLiteral("Bibliotheken"));
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    label->setOpenExternalLinks(true);
    label->setMargin(12);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

} // namespace kalvenor::language
