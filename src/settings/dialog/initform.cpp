// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/initform.h"

#include "host/windowplace.h"
#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "settings/dialog/contentspanel.h"
#include "settings/dialog/fontpanel.h"
#include "settings/dialog/pagepanel.h"
#include <QBoxLayout>
#include <QDir>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

Initform::Initform(const host::Host &host, language::Sprachmodul &texts, Druckvorgaben &vorgaben,
                   print::PageSetup &page, QWidget *parent)
    : QDialog(parent), m_host(host), m_texts(texts), m_vorgaben(vorgaben), m_page(page), m_tabs(new QTabWidget(this)),
      m_fonts(new FontPanel(host.desktop(), texts, this)), m_pagePanel(new PagePanel(texts, this)),
      m_contents(new ContentsPanel(texts, this))
{
    setObjectName(u"initform"_s);
    language::setDesignText(this, Text::PrintSettings);
    m_tabs->setObjectName(u"Tabs"_s);
    m_tabs->addTab(m_fonts, {});
    m_tabs->addTab(m_pagePanel, {});
    m_tabs->addTab(m_contents, {});
    language::setDesignTab(m_tabs, 0, Text::SettingsFonts);
    language::setDesignTab(m_tabs, 1, Text::SettingsPage);
    language::setDesignTab(m_tabs, 2, Text::Contents);
    new QVBoxLayout(this);
    layout()->addWidget(m_tabs);
    makeButtons();
    language::formuebersetzen(*this, texts, host);
    language::giveAccessKeys(*this);
    unsetCursor();

    language::turnByCtrlTab(*m_tabs);
    initladen(host, vorgaben, page);
    fill(vorgaben, page, ReportMeasures::read(host));
    new host::WindowPlace(*this, host, u"Druckeinstellungen"_s, sizeHint());
}

void Initform::makeButtons()
{
    const auto button = [this](const char *name, Text caption, Text tooltip) {
        auto *made = new QPushButton(this);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        language::setDesignText(made, caption, tooltip);
        return made;
    };
    auto *defaults = button("Vorgaben", Text::Defaults, Text::DefaultsTip);
    auto *ok = button("Ende_0", Text::Ok, Text::None);
    auto *cancel = button("Ende_1", Text::Cancel, Text::None);
    ok->setDefault(true);
    connect(defaults, &QPushButton::clicked, this, &Initform::showDefaults);
    connect(ok, &QPushButton::clicked, this, &Initform::confirm);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(defaults);
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(cancel);
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void Initform::fill(const Druckvorgaben &vorgaben, const print::PageSetup &page, const ReportMeasures &measures)
{
    m_fonts->setVorgaben(vorgaben);
    m_pagePanel->setPage(page);
    m_contents->setContents(vorgaben, measures);
}

void Initform::showDefaults()
{
    print::PageSetup page; // the paper is no setting of this dialog
    page.paperWidth = m_page.paperWidth;
    page.paperHeight = m_page.paperHeight;
    fill(defaultVorgaben(), page, {});
}

void Initform::confirm()
{
    Druckvorgaben vorgaben = m_vorgaben;
    m_fonts->takeInto(vorgaben);
    m_contents->takeInto(vorgaben);
    const print::PageSetup page = m_pagePanel->page();
    if (!leavesRoom(page)) {
        m_tabs->setCurrentWidget(m_pagePanel);
        tell(Text::NoRoomForText);
        return;
    }
    const bool saved = initspeichern(m_host, vorgaben, page);
    if (!m_contents->measures().write(m_host) || !saved) {
        tell(Text::SettingsNotSaved, QDir::toNativeSeparators(m_host.native(m_host.ownSettingsFile())));
        return;
    }
    m_vorgaben = vorgaben;
    m_page = page;
    accept();
}

void Initform::tell(Text id, const QString &what)
{
    QString text = m_texts.text(id);
    m_host.desktop().messageBox(text.replace(u"%1"_s, what), desktop::MessageCritical, windowTitle());
}

} // namespace kalvenor::settings
