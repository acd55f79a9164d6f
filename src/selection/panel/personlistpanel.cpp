// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/personlistpanel.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/elidedlabel.h"
#include "platform/desktop/lineicon.h"
#include "selection/panel/personcard.h"
#include "selection/panel/selectioncontroller.h"
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr int LeastRows = 2;

QString numbered(const char *name, PersonList list)
{
    return u"%1_%2"_s.arg(QLatin1String(name)).arg(static_cast<int>(list));
}

QToolButton *headButton(QWidget *parent, const char *name, PersonList list)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(numbered(name, list));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PersonListPanel::PersonListPanel(SelectionController &controller, PersonList list, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_list(list), m_load(headButton(this, "Ladepersonenliste", list)),
      m_lift(headButton(this, "Filterloesen", list)), m_view(new PersonListView(controller.model(list), this)),
      m_figures(new desktop::ElidedLabel(this)), m_empty(new QScrollArea(m_view->viewport())),
      m_why(new QLabel(m_empty)), m_wayOn(new QPushButton(m_empty))
{
    controller.model(list).setObjectName(numbered("Data", list));
    m_view->setObjectName(numbered("liste", list));
    language::setDesignText(m_view, list == PersonList::Unmarked ? Text::UnmarkedPersons : Text::MarkedPersons);
    if (controller.session().host.Kurzhilfe == 1)
        m_view->setCard([this](qint32 counter) { return personCard(m_controller.session(), counter); });
    m_view->setDragCaption([this](qint64 count) {
        return m_controller.session().language.text(Text::SomePersons).arg(m_controller.numberText(count));
    });
    m_view->setMinimumHeight(LeastRows * (fontMetrics().height() + 6));
    m_figures->setObjectName(numbered("Zahl", list));
    new QVBoxLayout(this);
    makeHead();
    layout()->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(3);
    layout()->addWidget(m_view);
    layout()->addWidget(m_figures);
    makeEmptyState();

    connect(m_load, &QToolButton::clicked, this, [this] {
        m_controller.reloadPlain(m_list);
        update();
    });
    connect(m_lift, &QToolButton::clicked, this, &PersonListPanel::liftWanted);
    connect(m_view, &PersonListView::selectionCountChanged, this, &PersonListPanel::showFigures);
}

void PersonListPanel::makeHead()
{
    auto *title = new desktop::ElidedLabel(this);
    language::setDesignText(title, m_list == PersonList::Unmarked ? Text::UnmarkedPersons : Text::MarkedPersons);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_load->setCheckable(true);
    showFilterState(); // its caption is its accessible name
    language::setDesignText(m_load, {}, Text::ReloadListTip);
    m_lift->setIcon(desktop::lineIcon(desktop::LineIcon::Clear));
    language::setDesignText(m_lift, {}, Text::LiftFilterTip);
    m_lift->hide();
    auto *head = new QHBoxLayout;
    head->setSpacing(0);
    head->addWidget(title, 1);
    head->addWidget(m_load);
    head->addWidget(m_lift);
    static_cast<QVBoxLayout *>(layout())->addLayout(head);
}

void PersonListPanel::makeEmptyState()
{
    m_empty->setObjectName(numbered("Leer", m_list));
    m_why->setTextFormat(Qt::PlainText);
    m_why->setWordWrap(true);
    m_why->setAlignment(Qt::AlignCenter);
    m_why->setForegroundRole(QPalette::Text); // on the ground of a list
    m_wayOn->setObjectName(numbered("Weiter", m_list));
    m_wayOn->setAutoDefault(false);
    m_wayOn->setCursor(Qt::ArrowCursor);
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->addWidget(m_why);
    column->addWidget(m_wayOn, 0, Qt::AlignHCenter);
    column->addStretch(1);
    m_empty->setWidget(content);
    m_empty->setWidgetResizable(true);
    m_empty->setFrameShape(QFrame::NoFrame);
    m_empty->setFocusPolicy(Qt::NoFocus);
    for (QWidget *ground : {content, m_empty->viewport()})
        ground->setAutoFillBackground(false); // the list's own shows
    auto *all = new QVBoxLayout(m_view->viewport());
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_empty);
    m_empty->hide();
    connect(m_wayOn, &QPushButton::clicked, this, [this] {
        m_view->setFocus(); // the button goes
        if (m_controller.isFiltered(m_list))
            Q_EMIT liftWanted();
        else
            Q_EMIT moveAllWanted(m_list == PersonList::Marked ? PersonList::Unmarked : PersonList::Marked);
    });
}

void PersonListPanel::update()
{
    showFilterState();
    showFigures();
    showEmptyState();
}

void PersonListPanel::showFilterState()
{
    language::Sprachmodul &texts = m_controller.session().language;
    const bool filtered = m_controller.isFiltered(m_list);
    m_load->setText(texts.text(filtered ? Text::FilteredList : Text::ReloadList));
    m_load->setChecked(filtered);
    m_load->setIcon(desktop::lineIcon(filtered ? desktop::LineIcon::Funnel : desktop::LineIcon::Reload));
    m_load->setToolButtonStyle(filtered ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    if (m_controller.session().host.Kurzhilfe == 1)
        m_load->setToolTip(texts.text(filtered ? Text::FilteredListTip : Text::ReloadListTip));
    m_lift->setVisible(filtered);
}

void PersonListPanel::showFigures()
{
    language::Sprachmodul &texts = m_controller.session().language;
    const auto number = [this](qint64 value) {
        return m_controller.numberText(value);
    };
    QString figures = texts.text(Text::CountOf)
                          .arg(number(m_controller.model(m_list).rowCount()), number(m_controller.personCount()));
    if (const qint64 selected = m_view->selectedCount(); selected > 1)
        figures = texts.text(Text::SelectedCount).arg(number(selected)) + u" · "_s + figures;
    m_figures->setText(figures);
}

void PersonListPanel::showEmptyState()
{
    language::Sprachmodul &texts = m_controller.session().language;
    const qint64 persons = m_controller.personCount();
    const int others =
        m_controller.model(m_list == PersonList::Marked ? PersonList::Unmarked : PersonList::Marked).rowCount();
    QString wayOn;
    if (persons == 0) {
        m_why->setText(texts.text(Text::NoPersons));
    } else if (m_controller.isFiltered(m_list)) {
        m_why->setText(texts.text(Text::NobodyMatches));
        wayOn = texts.text(Text::FilterClear);
    } else if (m_list == PersonList::Marked) {
        m_why->setText(texts.text(Text::NobodyMarked) + u' ' + texts.text(Text::HowToMark));
        wayOn = texts.text(Text::MarkThese).arg(m_controller.numberText(others));
    } else {
        m_why->setText(texts.text(Text::EverybodyMarked).arg(m_controller.numberText(persons)));
        wayOn = texts.text(Text::UnmarkThese).arg(m_controller.numberText(others));
    }
    m_wayOn->setText(wayOn.remove(u'&'));
    m_wayOn->setVisible(!wayOn.isEmpty() &&
                        (m_controller.isFiltered(m_list) || (others > 0 && !m_controller.isReadOnly())));
    m_empty->setVisible(m_controller.model(m_list).rowCount() == 0);
}

} // namespace kalvenor::selection
