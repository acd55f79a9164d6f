// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/agelistpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "statistics/panel/agelistmodel.h"
#include "statistics/panel/sexbox.h"
#include <algorithm>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

AgeListPanel::AgeListPanel(StatisticsController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller),
      m_model(new AgeListModel(controller.list(), this)), m_sexes{makeSexBox(this, 0, Text::MenListed),
                                                                  makeSexBox(this, 1, Text::WomenListed)},
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
    column->addWidget(m_view, 1);
    makeActions();
    setFocusProxy(m_view);

    for (const QCheckBox *box : m_sexes)
        connect(box, &QCheckBox::clicked, this, &AgeListPanel::listWanted);
    connect(&controller, &StatisticsController::listCleared, this, [this] {
        m_model->clear();
        updateFigures();
    });
    connect(&controller, &StatisticsController::listGrew, this, [this] {
        m_model->grow();
        updateFigures();
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

void AgeListPanel::copy() const
{
    QStringList lines;
    // Row by row of each range: a million selected rows are one range.
    QItemSelection ranges = m_view->selectionModel()->selection();
    std::sort(ranges.begin(), ranges.end(),
              [](const QItemSelectionRange &a, const QItemSelectionRange &b) { return a.top() < b.top(); });
    for (const QItemSelectionRange &range : std::as_const(ranges)) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            lines << m_controller.list()[static_cast<std::size_t>(row)].text();
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void AgeListPanel::updateFigures()
{
    data::Session &session = m_controller.session();
    m_figures->setText(session.language.text(Text::PersonsWithAge)
                           .arg(language::anzeigesprache(session.host).toString(m_model->rowCount())));
}

} // namespace kalvenor::statistics
