// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/initform.h"

#include "language/forms/form.h"
#include "language/forms/widgetform.h"
#include "settings/dialog/contentspanel.h"
#include "settings/dialog/fontpanel.h"
#include "settings/dialog/pagepanel.h"
#include <QBoxLayout>
#include <QDir>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

Initform::Initform(const host::Host &host, language::Sprachmodul &texts, Druckvorgaben &vorgaben,
                   print::PageSetup &page, QWidget *parent)
    : QDialog(parent), m_host(host), m_texts(texts), m_vorgaben(vorgaben), m_page(page), m_tabs(new QTabWidget(this)),
      m_fonts(new FontPanel(host.desktop(), texts, this)), m_pagePanel(new PagePanel(texts, this)),
      m_contents(new ContentsPanel(texts, this))
{
    setObjectName(u"initform"_s);
    language::setDesignText(this, u"20800Druckeinstellungen"_s);
    m_tabs->setObjectName(u"Tabs"_s);
    m_tabs->addTab(m_fonts, {});
    m_tabs->addTab(m_pagePanel, {});
    m_tabs->addTab(m_contents, {});
    language::setDesignTab(m_tabs, 0, u"20801Schriften"_s);
    language::setDesignTab(m_tabs, 1, u"20802Seite"_s);
    language::setDesignTab(m_tabs, 2, u"20803Inhalt"_s);
    new QVBoxLayout(this);
    layout()->addWidget(m_tabs);
    makeButtons();
    language::formuebersetzen(*this, texts, host);
    unsetCursor();

    initladen(host, vorgaben, page);
    fill(vorgaben, page, ReportMeasures::read(host));
}

void Initform::makeButtons()
{
    const auto button = [this](const char *name, const char *caption, const char *tooltip) {
        auto *made = new QPushButton(this);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        language::setDesignText(made, QString::fromUtf8(caption), QString::fromUtf8(tooltip));
        return made;
    };
    auto *defaults = button("Vorgaben", "20872Vorgaben", "20873Alle Einstellungen auf die Vorgaben setzen");
    auto *ok = button("Ende_0", "20870OK", "");
    auto *cancel = button("Ende_1", "20871Abbrechen", "");
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
        tell(20875, u"Die Ränder lassen keinen Platz für den Text."_s);
        return;
    }
    const bool saved = initspeichern(m_host, vorgaben, page);
    if (!m_contents->measures().write(m_host) || !saved) {
        tell(20874, u"Die Einstellungen konnten nicht gespeichert werden: %1"_s,
             QDir::toNativeSeparators(m_host.native(m_host.ownSettingsFile())));
        return;
    }
    m_vorgaben = vorgaben;
    m_page = page;
    accept();
}

void Initform::tell(qint16 id, const QString &germanText, const QString &what)
{
    QString text = language::shownText(m_texts, id, germanText);
    m_host.desktop().messageBox(text.replace(u"%1"_s, what), desktop::MessageCritical, windowTitle());
}

} // namespace kalvenor::settings
