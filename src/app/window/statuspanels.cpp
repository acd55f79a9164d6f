// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/statuspanels.h"

#include "app/window/messageline.h"
#include "language/forms/widgetform.h"
#include "language/progress/progresspanel.h"
#include "language/texts/errormessage.h"
#include <array>
#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

constexpr qsizetype DamageLinesShown = 12;

} // namespace

StatusPanels::StatusPanels(QStatusBar &bar, MessageLine &message, desktop::Work &work) : m_bar(bar), m_message(message)
{
    bar.addWidget(&message, 1);
    bar.addPermanentWidget(new language::ProgressPanel(work, &bar));
    m_database = makePanel("PanelDatenbank", Text::FamilyDatabaseTip);
    m_readOnly = makePanel("PanelNurlesen", Text::ReadOnlyTip);
    language::setDesignText(m_readOnly, Text::ReadOnly);
    m_damage = makePanel("PanelSchaden", Text::None);
    m_persons = makePanel("PanelPersonen", Text::PersonsCountTip);
    m_marked = makePanel("PanelMarkiert", Text::MarkedCountTip);
    m_readOnly->hide();
    m_damage->hide();
    QObject::connect(&message, &MessageLine::changed, m_database, [this] { makeRoom(); });
}

QLabel *StatusPanels::makePanel(const char *name, Text tooltip)
{
    auto *label = new QLabel(&m_bar);
    label->setObjectName(QLatin1String(name));
    label->setContentsMargins(6, 0, 6, 0);
    language::setDesignText(label, {}, tooltip);
    m_bar.addPermanentWidget(label);
    return label;
}

/// A long message takes the room of the panels.
void StatusPanels::makeRoom()
{
    const std::array<QLabel *, 3> labels{m_database, m_persons, m_marked};
    int room = m_bar.width() - m_message.wantedWidth() - 40;
    for (const QLabel *label : labels)
        room -= label->sizeHint().width();
    for (QLabel *label : labels)
        label->setVisible(m_message.text().isEmpty() || room > 0);
}

void StatusPanels::update(data::Session &session, selection::SelectionController &lists)
{
    const dao::Database &family = *session.databases.Familiendatenbank;
    if (!family.isOpen())
        return; // while another one is being opened
    m_database->setText(QFileInfo(family.file()).fileName());
    m_readOnly->setVisible(lists.isReadOnly());
    const std::vector<jet::Damage> damage = session.databases.damage();
    qint64 places = 0;
    QStringList lines;
    for (const jet::Damage &kind : damage) {
        places += kind.count;
        if (lines.size() < DamageLinesShown)
            lines << language::damageLine(session.language, kind);
    }
    m_damage->setVisible(!damage.empty());
    m_damage->setText(session.language.text(Text::DamageCount).arg(lists.numberText(places)));
    m_damage->setToolTip(lines.join(u'\n'));

    m_persons->setText(session.language.text(Text::PersonsCount).arg(lists.numberText(lists.personCount())));
    m_marked->setText(session.language.text(Text::MarkedCount).arg(lists.numberText(lists.markedCount())));
}

} // namespace kalvenor::app
