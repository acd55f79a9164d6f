// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/leftoutdialog.h"

#include "host/windowplace.h"
#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "statistics/panel/selectedlines.h"
#include <algorithm>
#include <array>
#include <QAbstractTableModel>
#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr int RowsMeasured = 100;
enum Column { NameColumn, ReasonColumn, ColumnCount };

class LeftOutModel : public QAbstractTableModel {
public:
    LeftOutModel(language::Sprachmodul &texts, const std::vector<Ausgelassener> &persons, QObject *parent)
        : QAbstractTableModel(parent), m_persons(persons), m_headings{texts.text(Text::Name), texts.text(Text::Reason)},
          m_reasons{texts.text(Text::NoBirthDate), texts.text(Text::NoDeathDate), texts.text(Text::NoBirthAndDeathDate),
                    texts.text(Text::DeathNotAfterBirth), texts.text(Text::SexNotKnown)}
    {
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_persons.size());
    }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
            return {};
        const Ausgelassener &person = m_persons[static_cast<std::size_t>(index.row())];
        return index.column() == NameColumn ? person.listname : m_reasons[static_cast<std::size_t>(person.grund)];
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        return m_headings[static_cast<std::size_t>(section)];
    }

private:
    const std::vector<Ausgelassener> &m_persons;
    const std::array<QString, ColumnCount> m_headings;
    const std::array<QString, 5> m_reasons; ///< by Auslassung
};

} // namespace

LeftOutDialog::LeftOutDialog(data::Session &session, const std::vector<Ausgelassener> &persons, QWidget *parent)
    : QDialog(parent), m_persons(persons), m_view(new QTableView(this))
{
    setObjectName(u"Auslassungsliste"_s);
    language::setDesignText(this, Text::FiguresLeftOut);
    m_view->setObjectName(u"Ausgelassene"_s);
    language::setDesignText(m_view, Text::FiguresLeftOut);
    m_view->setModel(new LeftOutModel(session.language, persons, this));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->setShowGrid(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + 6);
    m_view->horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(ReasonColumn, QHeaderView::ResizeToContents);
    m_view->horizontalHeader()->setResizeContentsPrecision(RowsMeasured);
    m_view->horizontalHeader()->setHighlightSections(false);

    auto *show = new QPushButton(this);
    show->setObjectName(u"Personzeigen"_s);
    show->setDefault(true);
    language::setDesignText(show, Text::ShowPersonInList);
    auto *close = new QPushButton(this);
    close->setObjectName(u"Schliessen"_s);
    language::setDesignText(close, Text::Close);
    auto *copy = new QAction(m_view);
    language::setDesignText(copy, Text::CopyLines);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(copy);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(show);
    buttons->addWidget(close);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_view, 1);
    column->addLayout(buttons);

    language::formuebersetzen(*this, session.language, session.host);
    language::giveAccessKeys(*this);
    unsetCursor();
    setWindowTitle(titleText(session));
    connect(copy, &QAction::triggered, this, &LeftOutDialog::copy);
    connect(show, &QPushButton::clicked, this, &QDialog::accept);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_view, &QTableView::doubleClicked, this, &QDialog::accept);
    show->setEnabled(!persons.empty());
    m_view->selectRow(0);
    m_view->setFocus();
    new host::WindowPlace(*this, session.host, u"Auslassungen"_s, QSize(44, 26) * fontMetrics().height());
}

/// How many are not counted; who is counted under "all" alone is told apart, as among the figures.
QString LeftOutDialog::titleText(data::Session &session) const
{
    const QLocale locale = language::anzeigesprache(session.host);
    const auto all = static_cast<qint64>(m_persons.size());
    const qint64 onlyUnderAll = std::ranges::count(m_persons, Auslassung::Geschlecht, &Ausgelassener::grund);
    QString title = u"%1: %2"_s.arg(windowTitle(), locale.toString(all - onlyUnderAll));
    if (onlyUnderAll > 0)
        title += u", "_s + session.language.text(Text::UnknownSexCount).arg(locale.toString(onlyUnderAll));
    return title;
}

qint32 LeftOutDialog::chosen() const
{
    return m_persons[static_cast<std::size_t>(m_view->currentIndex().row())].Counter;
}

void LeftOutDialog::copy() const
{
    copySelectedLines(*m_view, [this](int row) {
        return m_persons[static_cast<std::size_t>(row)].listname + u'\t' +
               m_view->model()->index(row, ReasonColumn).data().toString();
    });
}

} // namespace kalvenor::statistics
