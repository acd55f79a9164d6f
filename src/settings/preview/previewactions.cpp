// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/previewactions.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include "settings/preview/pageview.h"
#include <algorithm>
#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

constexpr std::array<Fit, 4> FitOfChoice = {Fit::WholePage, Fit::PageWidth, Fit::TwoPages, Fit::Thumbnails};

QAction *make(QMainWindow &window, const char *name, Text caption, const QList<QKeySequence> &keys = {})
{
    auto *action = new QAction(&window);
    action->setObjectName(QLatin1String(name));
    language::setDesignText(action, caption);
    action->setShortcuts(keys);
    return action;
}

QAction *make(QMainWindow &window, const char *name, Text caption, desktop::LineIcon icon,
              const QList<QKeySequence> &keys = {})
{
    QAction *action = make(window, name, caption, keys);
    action->setIcon(desktop::lineIcon(icon));
    return action;
}

QAction *makeCommand(QMainWindow &window, const char *key, Text caption, Text tooltip, desktop::LineIcon icon)
{
    QAction *action = make(window, key, caption, icon);
    language::setDesignText(action, {}, tooltip);
    return action;
}

QToolBar *makeToolBar(QMainWindow &window, const char *name, Text caption, Qt::ToolButtonStyle style)
{
    auto *bar = new QToolBar(&window);
    bar->setObjectName(QLatin1String(name));
    bar->setMovable(false);
    bar->setToolButtonStyle(style);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    language::setDesignText(bar, caption);
    window.addToolBar(bar);
    return bar;
}

} // namespace

PreviewActions::PreviewActions(QMainWindow &window)
    : commands{makeCommand(window, "drucker", Text::PreviewPrint, Text::PreviewPrintTip, desktop::LineIcon::Print),
               makeCommand(window, "save", Text::PreviewSave, Text::PreviewSaveTip, desktop::LineIcon::Save),
               makeCommand(window, "INITVorgaben", Text::PreviewSettings, Text::PreviewSettingsTip,
                           desktop::LineIcon::Sliders),
               makeCommand(window, "INI", Text::PageSetup, Text::PageSetupTip, desktop::LineIcon::Page)},
      MDD(make(window, "MDD", Text::PreviewMenuPrint, desktop::LineIcon::Print, {Qt::CTRL | Qt::Key_P})),
      MDS(make(window, "MDS", Text::PreviewMenuSave, desktop::LineIcon::Save, {Qt::CTRL | Qt::Key_S})),
      MDINI(make(window, "MDINI", Text::PreviewMenuPageSetup, desktop::LineIcon::Page)),
      MDE(make(window, "MDE", Text::PreviewMenuClose, {Qt::CTRL | Qt::Key_W})),
      MHH(make(window, "MHH", Text::PreviewMenuHelp, {Qt::Key_F1})),
      first(make(window, "Erste", Text::FirstPage, desktop::LineIcon::First, {Qt::CTRL | Qt::Key_Home})),
      previous(make(window, "Vorige", Text::PreviousPage, desktop::LineIcon::Left, {Qt::CTRL | Qt::Key_PageUp})),
      next(make(window, "Naechste", Text::NextPage, desktop::LineIcon::Right, {Qt::CTRL | Qt::Key_PageDown})),
      last(make(window, "Letzte", Text::LastPage, desktop::LineIcon::Last, {Qt::CTRL | Qt::Key_End})),
      larger(make(window, "Groesser", Text::ZoomIn, desktop::LineIcon::Plus,
                  {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal})),
      smaller(make(window, "Kleiner", Text::ZoomOut, desktop::LineIcon::Minus, {Qt::CTRL | Qt::Key_Minus})),
      actualSize(make(window, "Originalgroesse", Text::ActualSize, {Qt::CTRL | Qt::Key_0})),
      find(make(window, "Finden", Text::FindText, desktop::LineIcon::Find, {Qt::CTRL | Qt::Key_F})),
      findNext(make(window, "Weitersuchen", Text::FindNext, {Qt::Key_F3})),
      findPrevious(make(window, "Rueckwaertssuchen", Text::FindPrevious, {Qt::SHIFT | Qt::Key_F3})), fits{},
      page(new QSpinBox), zoom(new QComboBox)
{
    auto *group = new QActionGroup(&window);
    for (QAction *&fit : fits) {
        fit = new QAction(group);
        fit->setCheckable(true);
    }
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    page->setObjectName(u"Seite"_s);
    page->setButtonSymbols(QAbstractSpinBox::NoButtons);
    page->setAlignment(Qt::AlignCenter);
    page->setKeyboardTracking(false);
    language::setDesignText(page, Text::GoToPage, Text::GoToPage);
    zoom->setObjectName(u"Zoom"_s);
    zoom->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    zoom->setMaxVisibleItems(30);
    language::setDesignText(zoom, Text::Zoom, Text::Zoom);
    makeMenus(window);
    makeToolBars(window);
    showZoomChoices({});
}

void PreviewActions::makeMenus(QMainWindow &window)
{
    QMenu *md = window.menuBar()->addMenu(QString());
    md->setObjectName(u"MD"_s);
    language::setDesignText(md, Text::PreviewMenuPrint);
    md->addActions({MDD, MDS});
    md->addSeparator();
    md->addAction(MDINI);
    md->addSeparator();
    md->addAction(MDE);

    QMenu *view = window.menuBar()->addMenu(QString());
    language::setDesignText(view, Text::MenuView);
    view->addActions({fits[0], fits[1], fits[2], fits[3]});
    view->addSeparator();
    view->addActions({larger, smaller, actualSize});
    view->addSeparator();
    view->addActions({first, previous, next, last});
    view->addSeparator();
    view->addActions({find, findNext, findPrevious});

    window.menuBar()->addAction(MHH);
}

void PreviewActions::makeToolBars(QMainWindow &window)
{
    m_tools = makeToolBar(window, "Toolbar", Text::MenuToolBar, Qt::ToolButtonTextBesideIcon);
    m_tools->addActions(commands);
    m_pages = makeToolBar(window, "Seiten", Text::Pages, Qt::ToolButtonIconOnly);
    m_pages->addActions({first, previous});
    m_pages->addWidget(page);
    m_pages->addActions({next, last});
    m_pages->addSeparator();
    m_pages->addAction(smaller);
    m_pages->addWidget(zoom);
    m_pages->addAction(larger);
    m_pages->addSeparator();
    m_pages->addAction(find);
    for (const QToolBar *bar : {m_tools, m_pages}) {
        for (QToolButton *button : bar->findChildren<QToolButton *>())
            button->setFocusPolicy(Qt::TabFocus);
    }
}

void PreviewActions::fitInto(int width)
{
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (m_tools->sizeHint().width() + m_pages->sizeHint().width() > width)
        m_tools->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void PreviewActions::showZoomChoices(const ControlTexts &texts)
{
    const QSignalBlocker quiet(zoom);
    const auto choices = texts.zooms();
    zoom->clear();
    for (std::size_t i = 0; i < choices.size(); ++i) {
        fits[i]->setText(choices[i]);
        zoom->addItem(QString(choices[i]).remove(u'&'));
    }
    zoom->insertSeparator(zoom->count());
    for (int percent = SmallestZoom;; percent = nextZoom(percent, true)) {
        zoom->addItem(u"%1 %"_s.arg(percent), percent);
        if (percent == LargestZoom)
            break;
    }
}

void PreviewActions::follow(const PageView &view, const QString &pageOf)
{
    const QSignalBlocker quietPage(page);
    const QSignalBlocker quietZoom(zoom);
    const int count = view.pageCount();
    const int current = view.currentPage();
    const qsizetype place = pageOf.indexOf(u"%1"_s);
    page->setRange(count == 0 ? 0 : 1, count);
    page->setPrefix(pageOf.left(std::max<qsizetype>(place, 0)));
    page->setSuffix(pageOf.mid(place < 0 ? 0 : place + 2).replace(u"%2"_s, QString::number(count)));
    page->setValue(count == 0 ? 0 : current + 1);
    page->setEnabled(count > 0);
    for (QAction *back : {first, previous})
        back->setEnabled(current > 0);
    for (QAction *forth : {next, last})
        forth->setEnabled(current + 1 < count);

    for (std::size_t i = 0; i < fits.size(); ++i)
        fits[i]->setChecked(view.fit() == FitOfChoice[i]);
    const auto *fitted = std::find(FitOfChoice.begin(), FitOfChoice.end(), view.fit());
    zoom->setCurrentIndex(fitted != FitOfChoice.end() ? static_cast<int>(fitted - FitOfChoice.begin())
                                                      : zoom->findData(view.zoom()));
    larger->setEnabled(view.zoom() < LargestZoom);
    smaller->setEnabled(view.zoom() > SmallestZoom);
}

void PreviewActions::choose(PageView &view, int choice) const
{
    const QVariant percent = zoom->itemData(choice);
    if (percent.isValid())
        view.setZoom(percent.toInt());
    else if (choice >= 0 && choice < static_cast<int>(FitOfChoice.size()))
        view.setFit(FitOfChoice[static_cast<std::size_t>(choice)]);
}

} // namespace kalvenor::settings
