// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/statuspanels.h"

#include "language/forms/widgetform.h"
#include "language/progress/progresspanel.h"
#include "platform/jet/marks/markwriter.h"
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

StatusPanels::StatusPanels(QStatusBar &bar, desktop::Work &work) : m_bar(bar)
{
    bar.addPermanentWidget(new language::ProgressPanel(work, &bar));
    m_database = makePanel("PanelDatenbank", Text::FamilyDatabaseTip);
    m_readOnly = makePanel("PanelNurlesen", Text::ReadOnlyTip);
    language::setDesignText(m_readOnly, Text::ReadOnly);
    m_damage = makePanel("PanelSchaden", Text::None);
    m_persons = makePanel("PanelPersonen", Text::PersonsCountTip);
    m_marked = makePanel("PanelMarkiert", Text::MarkedCountTip);
    m_readOnly->hide();
    m_damage->hide();
    QObject::connect(&bar, &QStatusBar::messageChanged, m_database,
                     [this](const QString &message) { makeRoom(message); });
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
void StatusPanels::makeRoom(const QString &message)
{
    const std::array<QLabel *, 3> labels{m_database, m_persons, m_marked};
    int room = m_bar.width() - m_bar.fontMetrics().horizontalAdvance(message) - 40;
    for (const QLabel *label : labels)
        room -= label->sizeHint().width();
    for (QLabel *label : labels)
        label->setVisible(message.isEmpty() || room > 0);
    m_bar.setToolTip(message);
}

void StatusPanels::update(data::Session &session, selection::SelectionController &lists)
{
    using selection::PersonList;
    const dao::Database &family = *session.databases.Familiendatenbank;
    if (!family.isOpen())
        return; // while another one is being opened
    m_database->setText(QFileInfo(family.file()).fileName());
    m_readOnly->setVisible(jet::isWriteProtected(family.file()));
    const QStringList damage = family.warnings();
    m_damage->setVisible(!damage.isEmpty());
    m_damage->setText(session.language.text(Text::DamageCount).arg(lists.numberText(damage.size())));
    m_damage->setToolTip(damage.mid(0, DamageLinesShown).join(u'\n'));

    const auto count = [&lists](PersonList list) {
        return lists.model(list).rowCount();
    };
    const qint64 all = lists.personCount();
    // A filter narrows one list at most; the other one tells how many are marked.
    const qint64 marked =
        lists.isFiltered(PersonList::Marked) ? all - count(PersonList::Unmarked) : count(PersonList::Marked);
    m_persons->setText(session.language.text(Text::PersonsCount).arg(lists.numberText(all)));
    m_marked->setText(session.language.text(Text::MarkedCount).arg(lists.numberText(marked)));
}

} // namespace kalvenor::app
