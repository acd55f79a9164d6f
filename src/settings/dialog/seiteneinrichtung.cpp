// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/seiteneinrichtung.h"

#include "host/windowplace.h"
#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "settings/dialog/pagepanel.h"
#include "settings/store/druckvorgaben.h"
#include <array>
#include <cstdlib>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPageSize>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

constexpr double TwipsPerMillimetre = 1440 / 25.4;
constexpr print::Twips SamePaper = 30; ///< tables of papers are rounded, some to points

constexpr std::array<QPageSize::PageSizeId, 7> Papers = {QPageSize::A3,     QPageSize::A4,     QPageSize::A5,
                                                         QPageSize::B5,     QPageSize::Letter, QPageSize::Legal,
                                                         QPageSize::Tabloid};

QSize inTwips(QPageSize::PageSizeId paper)
{
    const QSizeF millimetres = QPageSize::size(paper, QPageSize::Millimeter);
    return (millimetres * TwipsPerMillimetre).toSize();
}

} // namespace

Seiteneinrichtung::Seiteneinrichtung(const host::Host &host, language::Sprachmodul &texts, const print::PageSetup &page,
                                     QWidget *parent)
    : QDialog(parent), m_host(host), m_texts(texts), m_paper(new QComboBox(this)), m_panel(new PagePanel(texts, this))
{
    setObjectName(u"Seiteneinrichtung"_s);
    language::setDesignText(this, Text::PageSetup);
    m_paper->setObjectName(u"Papier"_s);
    auto *paperLabel = new QLabel(this);
    language::setDesignText(paperLabel, Text::Paper);
    paperLabel->setBuddy(m_paper);
    auto *ok = new QPushButton(this);
    ok->setObjectName(u"OK"_s);
    ok->setDefault(true);
    language::setDesignText(ok, Text::Ok);
    auto *cancel = new QPushButton(this);
    cancel->setObjectName(u"Abbrechen"_s);
    language::setDesignText(cancel, Text::Cancel);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *paperRow = new QHBoxLayout;
    paperRow->setContentsMargins(9, 6, 9, 0);
    paperRow->addWidget(paperLabel);
    paperRow->addWidget(m_paper, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *column = new QVBoxLayout(this);
    column->addLayout(paperRow);
    column->addWidget(m_panel, 1);
    column->addLayout(buttons);
    setTabOrder(m_paper, m_panel);

    fillPapers(page);
    m_panel->setPage(page);
    connect(m_paper, &QComboBox::currentIndexChanged, this, [this] { m_panel->setPage(this->page()); });
    language::formuebersetzen(*this, texts, host);
    language::giveAccessKeys(*this);
    unsetCursor();
    new host::WindowPlace(*this, host, u"Seite"_s, sizeHint());
}

void Seiteneinrichtung::fillPapers(const print::PageSetup &page)
{
    const QSize current(page.paperWidth, page.paperHeight);
    int chosen = -1;
    for (const QPageSize::PageSizeId paper : Papers) {
        QSize size = inTwips(paper);
        if (std::abs(size.width() - current.width()) <= SamePaper &&
            std::abs(size.height() - current.height()) <= SamePaper) {
            size = current;
            chosen = m_paper->count();
        }
        m_paper->addItem(QPageSize::name(paper), size);
    }
    if (chosen < 0) {
        chosen = m_paper->count();
        const QLocale locale;
        m_paper->addItem(u"%1 × %2 mm"_s.arg(locale.toString(current.width() / TwipsPerMillimetre, 'f', 0),
                                             locale.toString(current.height() / TwipsPerMillimetre, 'f', 0)),
                         current);
    }
    m_paper->setCurrentIndex(chosen);
}

print::PageSetup Seiteneinrichtung::page() const
{
    print::PageSetup page = m_panel->page();
    const QSize paper = m_paper->currentData().toSize();
    page.paperWidth = paper.width();
    page.paperHeight = paper.height();
    return page;
}

void Seiteneinrichtung::accept()
{
    if (leavesRoom(page())) {
        QDialog::accept();
        return;
    }
    m_host.desktop().messageBox(m_texts.text(Text::NoRoomForText), desktop::MessageCritical, windowTitle());
}

} // namespace kalvenor::settings
