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

namespace {

constexpr qsizetype DamageLinesShown = 12;

} // namespace

StatusPanels::StatusPanels(QStatusBar &bar, desktop::Work &work) : m_bar(bar)
{
    bar.addPermanentWidget(new language::ProgressPanel(work, &bar));
    m_database = makePanel("PanelDatenbank", "20303Die geöffnete Familiendatenbank");
    m_readOnly = makePanel("PanelNurlesen", "20307Die Datenbank kann nicht geändert werden; Markierungen sind nicht "
                                            "möglich.");
    language::setDesignText(m_readOnly, u"20306Nur lesen"_s);
    m_damage = makePanel("PanelSchaden", "");
    m_persons = makePanel("PanelPersonen", "20304Zahl der Personen in der Datenbank");
    m_marked = makePanel("PanelMarkiert", "20305Zahl der markierten Personen");
    m_readOnly->hide();
    m_damage->hide();
    QObject::connect(&bar, &QStatusBar::messageChanged, m_database,
                     [this](const QString &message) { makeRoom(message); });
}

QLabel *StatusPanels::makePanel(const char *name, const char *tooltip)
{
    auto *label = new QLabel(&m_bar);
    label->setObjectName(QLatin1String(name));
    label->setContentsMargins(6, 0, 6, 0);
    language::setDesignText(label, {}, QString::fromUtf8(tooltip));
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
    const auto text = [&session](qint16 id, const char *german) {
        return language::shownText(session.language, id, QString::fromUtf8(german));
    };
    const dao::Database &family = *session.databases.Familiendatenbank;
    if (!family.isOpen())
        return; // while another one is being opened
    m_database->setText(QFileInfo(family.file()).fileName());
    m_readOnly->setVisible(jet::isWriteProtected(family.file()));
    const QStringList damage = family.warnings();
    m_damage->setVisible(!damage.isEmpty());
    m_damage->setText(text(20320, "Beschädigt, nicht alles lesbar: %1").arg(lists.numberText(damage.size())));
    m_damage->setToolTip(damage.mid(0, DamageLinesShown).join(u'\n'));

    const auto count = [&lists](PersonList list) {
        return lists.model(list).rowCount();
    };
    const qint64 all = lists.personCount();
    // A filter narrows one list at most; the other one tells how many are marked.
    const qint64 marked =
        lists.isFiltered(PersonList::Marked) ? all - count(PersonList::Unmarked) : count(PersonList::Marked);
    m_persons->setText(text(20301, "Personen: %1").arg(lists.numberText(all)));
    m_marked->setText(text(20302, "Davon markiert: %1").arg(lists.numberText(marked)));
}

} // namespace kalvenor::app
