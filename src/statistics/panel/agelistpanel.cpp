// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/agelistpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "statistics/panel/agelistmodel.h"
#include "statistics/panel/emptystate.h"
#include "statistics/panel/selectedlines.h"
#include "statistics/panel/sexbox.h"
#include <QAction>
#include <QCheckBox>
#include <QFontDatabase>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

AgeListPanel::AgeListPanel(StatisticsController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller),
      m_model(new AgeListModel(controller.list(), this)), m_sexes{makeSexBox(this, 0, Text::Men),
                                                                  makeSexBox(this, 1, Text::Women)},
      m_view(new QTableView(this)), m_figures(new QLabel(this))
{
    m_view->setObjectName(u"Altersliste"_s);
    language::setDesignText(m_view, Text::AgeList);
    m_view->setModel(m_model);
    QFont fixedPitch(u"Courier New"_s); // what makes the columns line up
    fixedPitch.setStyleHint(QFont::Monospace);
    fixedPitch.setPointSizeF(font().pointSizeF() > 0 ? font().pointSizeF() : 10);
    m_view->setFont(fixedPitch);
    m_view->horizontalHeader()->hide();
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    QHeaderView *rows = m_view->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setMinimumSectionSize(1);
    rows->setDefaultSectionSize(QFontMetrics(fixedPitch).lineSpacing() + 3);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setTabKeyNavigation(false);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_figures->setObjectName(u"Zahl_Altersliste"_s);
    m_figures->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_figures->setWordWrap(true); // the window keeps its width while the number grows

    auto *head = new QHBoxLayout;
    head->addWidget(m_sexes[0]);
    head->addWidget(m_sexes[1]);
    head->addWidget(m_figures, 1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(head);
    m_onlyBar = makeOnlyBar();
    column->addWidget(m_onlyBar);
    m_empty = EmptyState::standIn(m_view, controller.session().language);
    column->addWidget(m_empty->frame(), 1);
    makeActions();

    for (const QCheckBox *box : m_sexes)
        connect(box, &QCheckBox::clicked, this, &AgeListPanel::listWanted);
    connect(&controller, &StatisticsController::listCleared, this, [this] {
        m_model->clear();
        m_onlyBar->hide();
        updateFigures();
        showState();
    });
    connect(&controller, &StatisticsController::listGrew, this, [this] {
        m_model->grow();
        updateFigures();
        showState();
    });
    connect(m_view, &QTableView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT personWanted(m_model->counterAt(index.row())); });
}

void AgeListPanel::makeActions()
{
    const auto action = [this](const char *name, Text caption, const QList<QKeySequence> &keys) {
        auto *made = new QAction(m_view);
        made->setObjectName(QLatin1String(name));
        language::setDesignText(made, caption);
        made->setShortcuts(keys);
        made->setShortcutContext(Qt::WidgetShortcut);
        m_view->addAction(made);
        return made;
    };
    connect(action("Zeilenkopieren", Text::CopyLines, QKeySequence::keyBindings(QKeySequence::Copy)),
            &QAction::triggered, this, &AgeListPanel::copy);
    connect(action("Personzeigen", Text::ShowPersonInList, {Qt::Key_Return, Qt::Key_Enter}), &QAction::triggered, this,
            [this] {
                if (m_view->currentIndex().isValid())
                    Q_EMIT personWanted(m_model->counterAt(m_view->currentIndex().row()));
            });
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QWidget *AgeListPanel::makeOnlyBar()
{
    auto *bar = new QFrame(this);
    bar->setObjectName(u"NurDiese"_s);
    bar->setFrameShape(QFrame::StyledPanel);
    m_onlyWhat = new QLabel(bar);
    m_onlyWhat->setObjectName(u"NurDiese_Text"_s);
    m_onlyWhat->setWordWrap(true);
    m_markOnly = new QPushButton(bar);
    m_markOnly->setObjectName(u"NurDiese_markieren"_s);
    language::setDesignText(m_markOnly, Text::MarkOnlyThese, Text::MarkOnlyTheseTip);
    auto *all = new QPushButton(bar);
    all->setObjectName(u"GanzeListe"_s);
    language::setDesignText(all, Text::ShowWholeList);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 2, 2, 2);
    row->addWidget(m_onlyWhat, 1);
    row->addWidget(m_markOnly);
    row->addWidget(all);
    bar->hide();
    connect(m_markOnly, &QPushButton::clicked, this, [this] {
        const std::vector<qint32> others = m_others; // the list is computed anew on the way
        Q_EMIT unmarkWanted(others);
    });
    connect(all, &QPushButton::clicked, this, [this] {
        m_onlyBar->hide();
        m_model->showAll();
        updateFigures();
        focusFirst();
    });
    return bar;
}

void AgeListPanel::showOnly(const QString &what, const Saeule &persons)
{
    m_others = persons.uebrige;
    m_model->showOnly(persons.personen);
    data::Session &session = m_controller.session();
    const QLocale locale = language::anzeigesprache(session.host);
    const auto count = static_cast<qint64>(persons.personen.size());
    QString text = what;
    if (const qint64 absent = count - m_model->rowCount(); absent > 0)
        text += u' ' + session.language.text(Text::NotInListCount).arg(locale.toString(absent));
    m_onlyWhat->setText(text);
    updateMarkOnly();
    m_onlyBar->show();
    m_empty->showView();
    updateFigures();
}

void AgeListPanel::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    updateMarkOnly();
}

void AgeListPanel::updateMarkOnly()
{
    m_markOnly->setEnabled(!m_readOnly && !m_others.empty());
    data::Session &session = m_controller.session();
    if (session.host.Kurzhilfe == 1)
        m_markOnly->setToolTip(session.language.text(m_readOnly ? Text::ReadOnlyTip : Text::MarkOnlyTheseTip));
}

void AgeListPanel::focusFirst()
{
    m_view->setFocus();
}

void AgeListPanel::copy() const
{
    copySelectedLines(*m_view, [this](int row) { return m_model->lineAt(row).text(); });
}

void AgeListPanel::updateFigures()
{
    data::Session &session = m_controller.session();
    m_figures->setText(session.language.text(Text::PersonsWithAge)
                           .arg(language::anzeigesprache(session.host).toString(m_model->rowCount())));
}

/// The list, or why it is empty and what to do about it.
void AgeListPanel::showState()
{
    const bool nobodyChosen = !m_sexes[0]->isChecked() && !m_sexes[1]->isChecked();
    if (m_model->rowCount() > 0 || (!nobodyChosen && !m_controller.isListCurrent()))
        m_empty->showView();
    else if (nobodyChosen)
        m_empty->tell(Text::NoSexChosen, Text::MenAndWomenWanted, [this] {
            for (QCheckBox *box : m_sexes)
                box->setChecked(true);
            Q_EMIT listWanted();
        });
    else if (m_controller.markedCount() == 0)
        m_empty->tell(Text::MarkPersonsFirst, Text::ChoosePersons, [this] { Q_EMIT personsWanted(); });
    else
        m_empty->tell(Text::NobodyOfSexWithAge, Text::LeftOutWho, [this] { Q_EMIT leftOutWanted(); });
}

} // namespace kalvenor::statistics
