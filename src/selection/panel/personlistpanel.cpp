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

using language::Text;

PersonListPanel::PersonListPanel(SelectionController &controller, PersonList list, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_list(list), m_view(new PersonListView(controller.model(list), this)),
      m_load(new QToolButton(this)), m_figures(new QLabel(this))
{
    const auto named = [list](const char *name) {
        return u"%1_%2"_s.arg(QLatin1String(name)).arg(static_cast<int>(list));
    };
    controller.model(list).setObjectName(named("Data"));
    const Text heading = list == PersonList::Unmarked ? Text::UnmarkedPersons : Text::MarkedPersons;
    auto *title = new QLabel(this);
    language::setDesignText(title, heading);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);

    m_view->setObjectName(named("liste"));
    language::setDesignText(m_view, heading, Text::MovingHelp);
    m_load->setObjectName(named("Ladepersonenliste"));
    m_load->setCheckable(true);
    m_load->setAutoRaise(true);
    m_load->setFocusPolicy(Qt::TabFocus);
    m_load->setIcon(desktop::lineIcon(desktop::LineIcon::Reload));
    m_load->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    language::setDesignText(m_load, {}, Text::ReloadListTip);
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
    m_load->setText(filtered ? texts.text(Text::FilteredList) : texts.text(Text::ReloadList));
    m_load->setChecked(filtered);

    const auto number = [this](qint64 value) {
        return m_controller.numberText(value);
    };
    QString figures = texts.text(Text::CountOf)
                          .arg(number(m_controller.model(m_list).rowCount()), number(m_controller.personCount()));
    if (const qint64 selected = m_view->selectedCount(); selected > 1)
        figures = texts.text(Text::SelectedCount).arg(number(selected)) + u" · "_s + figures;
    m_figures->setText(figures);
    m_view->setPlaceholder(filtered                       ? texts.text(Text::NobodyMatches)
                           : m_list == PersonList::Marked ? texts.text(Text::NobodyMarked)
                                                          : QString());
}

} // namespace kalvenor::selection
