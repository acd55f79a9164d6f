// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/personlistpanel.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include "selection/panel/selectioncontroller.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

PersonListPanel::PersonListPanel(SelectionController &controller, PersonList list, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_list(list), m_view(new PersonListView(controller.model(list), this)),
      m_load(new QToolButton(this)), m_figures(new QLabel(this))
{
    const auto named = [list](const char *name) {
        return u"%1_%2"_s.arg(QLatin1String(name)).arg(static_cast<int>(list));
    };
    controller.model(list).setObjectName(named("Data"));
    const QString heading =
        list == PersonList::Unmarked ? u"20001Nicht markierte Personen"_s : u"20002Markierte Personen"_s;
    auto *title = new QLabel(this);
    language::setDesignText(title, heading);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);

    m_view->setObjectName(named("liste"));
    language::setDesignText(m_view, heading,
                            u"20023Doppelklick, Eingabetaste oder Ziehen verschiebt Personen in die andere Liste."_s);
    m_load->setObjectName(named("Ladepersonenliste"));
    m_load->setCheckable(true);
    m_load->setAutoRaise(true);
    m_load->setFocusPolicy(Qt::TabFocus);
    m_load->setIcon(desktop::lineIcon(desktop::LineIcon::Reload));
    m_load->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    language::setDesignText(m_load, {}, u"20006Lädt die Liste neu und hebt den Filter auf"_s);
    m_figures->setObjectName(named("Zahl"));
    m_figures->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *head = new QHBoxLayout;
    head->addWidget(m_load);
    head->addWidget(m_figures, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addWidget(title);
    column->addLayout(head);
    column->addWidget(m_view, 1);

    connect(m_load, &QToolButton::clicked, this, [this] {
        m_controller.reloadPlain(m_list);
        update();
    });
    connect(m_view, &PersonListView::selectionCountChanged, this, &PersonListPanel::update);
}

void PersonListPanel::update()
{
    language::Sprachmodul &texts = m_controller.session().language;
    const bool filtered = m_controller.isFiltered(m_list);
    m_load->setText(filtered ? language::shownText(texts, 20004, u"Filter Liste"_s)
                             : language::shownText(texts, 20003, u"Liste neu laden"_s));
    m_load->setChecked(filtered);

    const auto number = [this](qint64 value) {
        return m_controller.numberText(value);
    };
    QString figures = language::shownText(texts, 20005, u"%1 von %2"_s)
                          .arg(number(m_controller.model(m_list).rowCount()), number(m_controller.personCount()));
    if (const qint64 selected = m_view->selectedCount(); selected > 1)
        figures = language::shownText(texts, 20028, u"%1 ausgewählt"_s).arg(number(selected)) + u" · "_s + figures;
    m_figures->setText(figures);
    m_view->setPlaceholder(filtered ? language::shownText(texts, 20020, u"Keine Person passt zum Filter."_s)
                           : m_list == PersonList::Marked
                               ? language::shownText(texts, 20019, u"Keine Person ist markiert."_s)
                               : QString());
}

} // namespace kalvenor::selection
