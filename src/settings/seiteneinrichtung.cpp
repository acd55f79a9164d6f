// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/seiteneinrichtung.h"

#include "language/widgetform.h"
#include "settings/druckvorgaben.h"
#include "settings/pagepanel.h"
#include <array>
#include <cstdlib>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPageSize>
#include <QPushButton>
#include <QVBoxLayout>

namespace kalvenor::settings {

namespace {

constexpr double TwipsPerMillimetre = 1440 / 25.4;
constexpr Twips SamePaper = 30; ///< tables of papers are rounded, some to points

constexpr std::array<QPageSize::PageSizeId, 7> papers = {QPageSize::A3,     QPageSize::A4,     QPageSize::A5,
                                                         QPageSize::B5,     QPageSize::Letter, QPageSize::Legal,
                                                         QPageSize::Tabloid};

QSize inTwips(QPageSize::PageSizeId paper)
{
    const QSizeF millimetres = QPageSize::size(paper, QPageSize::Millimeter);
    return (millimetres * TwipsPerMillimetre).toSize();
}

} // namespace

Seiteneinrichtung::Seiteneinrichtung(const host::Host &host, language::Sprachmodul &texts, const PageSetup &page,
                                     QWidget *parent)
    : QDialog(parent), m_host(host), m_texts(texts), m_paper(new QComboBox(this)), m_panel(new PagePanel(texts, this))
{
    setObjectName(QStringLiteral("Seiteneinrichtung"));
    language::setDesignText(this, QStringLiteral("193Seite einrichten"));
    m_paper->setObjectName(QStringLiteral("Papier"));
    auto *paperLabel = new QLabel(this);
    language::setDesignText(paperLabel, QStringLiteral("20939Papier"));
    paperLabel->setBuddy(m_paper);
    auto *ok = new QPushButton(this);
    ok->setObjectName(QStringLiteral("OK"));
    ok->setDefault(true);
    language::setDesignText(ok, QStringLiteral("20870OK"));
    auto *cancel = new QPushButton(this);
    cancel->setObjectName(QStringLiteral("Abbrechen"));
    language::setDesignText(cancel, QStringLiteral("20871Abbrechen"));
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
    unsetCursor();
}

void Seiteneinrichtung::fillPapers(const PageSetup &page)
{
    const QSize current(page.paperWidth, page.paperHeight);
    int chosen = -1;
    for (const QPageSize::PageSizeId paper : papers) {
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
        m_paper->addItem(QStringLiteral("%1 × %2 mm")
                             .arg(locale.toString(current.width() / TwipsPerMillimetre, 'f', 0),
                                  locale.toString(current.height() / TwipsPerMillimetre, 'f', 0)),
                         current);
    }
    m_paper->setCurrentIndex(chosen);
}

PageSetup Seiteneinrichtung::page() const
{
    PageSetup page = m_panel->page();
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
    m_host.desktop().messageBox(
        language::shownText(m_texts, 20875, QStringLiteral("Die Ränder lassen keinen Platz für den Text.")),
        MessageCritical, windowTitle());
}

} // namespace kalvenor::settings
