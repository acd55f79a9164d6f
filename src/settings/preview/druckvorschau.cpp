// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckvorschau.h"

#include "host/hauptform.h"
#include "host/windowplace.h"
#include "language/forms/widgetform.h"
#include "language/progress/progresspanel.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/desktop/lineicon.h"
#include "settings/preview/pageview.h"
#include "settings/preview/previewactions.h"
#include "settings/preview/previewcommands.h"
#include "settings/preview/searchbar.h"
#include <new>
#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QScopeGuard>
#include <QSpinBox>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

constexpr int OnTop = -1;
constexpr int NotOnTop = 0;
constexpr QRgb PaperWhite = 0xffffff;
constexpr QSize FirstSize(1040, 820);
const QString Section = u"Fenster"_s;
const QString ZoomKey = u"VorschauZoom"_s;

const std::pair<QString, Fit> Fits[] = {{u"Seite"_s, Fit::WholePage},
                                        {u"Breite"_s, Fit::PageWidth},
                                        {u"ZweiSeiten"_s, Fit::TwoPages},
                                        {u"Miniaturen"_s, Fit::Thumbnails}};

/// As the settings keep it: the name of a fit, else percent.
QString zoomText(const PageView &view)
{
    for (const auto &[name, fit] : Fits) {
        if (view.fit() == fit)
            return name;
    }
    return QString::number(view.zoom());
}

void restoreZoom(PageView &view, const QString &text)
{
    for (const auto &[name, fit] : Fits) {
        if (text == name)
            view.setFit(fit);
    }
    if (const int percent = text.toInt(); percent > 0)
        view.setZoom(percent);
}

} // namespace

Druckvorschau::Druckvorschau(const host::Host &host, language::Sprachmodul &texts, print::PrintControl &control,
                             desktop::Work &work, QWidget *parent)
    : QMainWindow(parent), m_host(host), m_texts(texts), m_control(control), m_work(work), m_view(new PageView(this)),
      m_searchBar(new SearchBar(*m_view, texts, this)), m_actions(std::make_unique<PreviewActions>(*this)),
      m_commands(new PreviewCommands(host, texts, control, work, *m_view, *this)), m_open(new QPushButton(this))
{
    setObjectName(u"Druckvorschau"_s);
    language::setDesignText(this, Text::PrintPreview);
    m_view->setObjectName(u"VSPrinter"_s);
    language::setDesignText(m_view, Text::Pages);
    auto *middle = new QWidget(this);
    auto *column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_searchBar);
    column->addWidget(m_view, 1);
    setCentralWidget(middle);
    makeStatusBar();
    connectActions();

    language::formuebersetzen(*this, texts, host);
    unsetCursor();
    m_title = windowTitle();
    m_pageOf = text(Text::PageNumberOf);
    m_controlTexts.load(texts);
    m_commands->setTexts(m_controlTexts);
    m_actions->showZoomChoices(m_controlTexts);
    connect(&control, &print::PrintControl::changed, this, &Druckvorschau::showPages);
    connect(m_view, &PageView::currentPageChanged, this, &Druckvorschau::showPlace);
    connect(m_view, &PageView::zoomChanged, this, &Druckvorschau::showPlace);
    new host::WindowPlace(*this, host, u"Vorschau"_s, FirstSize);
    restoreZoom(*m_view, host.inilesen(host.ownSettingsFile(), Section, ZoomKey, {}));
    showPages();
    m_view->setFocus();
}

Druckvorschau::~Druckvorschau() = default;

void Druckvorschau::makeStatusBar()
{
    m_open->setObjectName(u"Oeffnen"_s);
    language::setDesignText(m_open, Text::Open);
    m_open->hide();
    connect(m_open, &QPushButton::clicked, this, &Druckvorschau::openSaved);
    statusBar()->addPermanentWidget(new language::ProgressPanel(m_work, this));
    statusBar()->addPermanentWidget(m_open);
}

void Druckvorschau::connectActions()
{
    const auto on = [this](QAction *action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    const auto command = [&](QAction *action, const QString &key) {
        on(action, [this, key] { toolbarbuttonclick(key); });
    };
    PreviewActions &actions = *m_actions;
    for (QAction *action : actions.commands)
        command(action, action->objectName());
    command(actions.MDD, u"drucker"_s);
    command(actions.MDS, u"save"_s);
    command(actions.MDINI, u"INI"_s);
    on(actions.MDE, [this] { close(); });
    on(actions.MHH, [this] { m_host.Hauptform->panelaufruf(u"Hilfe"_s); });
    connect(m_commands, &PreviewCommands::said, this, &Druckvorschau::say);
    connect(m_commands, &PreviewCommands::saved, this, &Druckvorschau::saySaved);
    on(actions.first, [this] { m_view->goToPage(0); });
    on(actions.previous, [this] { m_view->goToPage(m_view->currentPage() - 1); });
    on(actions.next, [this] { m_view->goToPage(m_view->currentPage() + 1); });
    on(actions.last, [this] { m_view->goToPage(m_view->pageCount() - 1); });
    on(actions.larger, [this] { m_view->zoomStep(true); });
    on(actions.smaller, [this] { m_view->zoomStep(false); });
    on(actions.actualSize, [this] { m_view->setZoom(100); });
    on(actions.find, [this] { m_searchBar->open(); });
    on(actions.findNext, [this] { m_searchBar->next(); });
    on(actions.findPrevious, [this] { m_searchBar->previous(); });
    for (std::size_t i = 0; i < actions.fits.size(); ++i)
        on(actions.fits[i], [this, i] { m_actions->choose(*m_view, static_cast<int>(i)); });
    connect(actions.zoom, &QComboBox::activated, this, [this](int choice) { m_actions->choose(*m_view, choice); });
    connect(actions.page, &QSpinBox::valueChanged, this, [this](int page) { m_view->goToPage(page - 1); });
    connect(actions.page, &QSpinBox::editingFinished, m_view, qOverload<>(&QWidget::setFocus));
}

void Druckvorschau::showPages()
{
    m_view->setPages(m_control.layout());
    const QString title = m_control.hasDocument() ? m_control.document().title : QString();
    setWindowTitle(title.isEmpty() ? m_title : u"%1 – %2"_s.arg(title, m_title));
    m_searchBar->restart();
    showPlace();
}

void Druckvorschau::showPlace()
{
    m_actions->follow(*m_view, m_pageOf);
}

QString Druckvorschau::text(Text id, const QString &what) const
{
    return m_texts.text(id).replace(u"%1"_s, what.isNull() ? u"%1"_s : what);
}

void Druckvorschau::say(const QString &what)
{
    m_open->hide();
    statusBar()->showMessage(what);
}

void Druckvorschau::saySaved(const QString &file)
{
    say(text(Text::Saved, QDir::toNativeSeparators(file)));
    m_saved = file;
    m_open->show();
}

void Druckvorschau::openSaved()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_saved)))
        m_host.desktop().messageBox(text(Text::FileNotOpened, QDir::toNativeSeparators(m_saved)),
                                    desktop::MessageCritical, m_title);
}

void Druckvorschau::toolbarbuttonclick(const QString &key)
{
    if (m_busy || m_work.isRunning())
        return;
    m_busy = true;
    m_open->hide();
    statusBar()->clearMessage();
    placeAll(NotOnTop); // so that dialogs can come to the front
    const auto end = qScopeGuard([this] {
        m_busy = false;
        placeAll(OnTop);
        if (m_closing)
            QTimer::singleShot(0, this, &QWidget::close);
    });
    try {
        m_commands->carryOut(key);
    } catch (const basic::Error &error) {
        if (error.kind() == basic::ErrorKind::Cancelled)
            say(key == u"drucker" ? text(Text::PrintingCancelled) : text(Text::SavingCancelled));
        else
            m_host.desktop().messageBox(language::errorMessage(m_texts, error), desktop::MessageCritical, m_title);
    } catch (const std::bad_alloc &) {
        m_host.desktop().messageBox(language::errorMessage(m_texts, basic::Error(basic::Fault::OutOfMemory)),
                                    desktop::MessageCritical, m_title);
    }
}

void Druckvorschau::placeAll(int onTop)
{
    if (m_host.Hauptform != nullptr)
        m_host.fensteroben(m_host.Hauptform->fenster().windowHandle(), onTop, false);
    m_host.fensteroben(windowHandle(), onTop, false);
}

void Druckvorschau::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || m_busy)
        return;
    m_view->setPaper(QColor(PaperWhite));
    m_host.fensteroben(windowHandle(), OnTop, false);
}

void Druckvorschau::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_actions->fitInto(width());
}

void Druckvorschau::closeEvent(QCloseEvent *event)
{
    if (m_busy || m_work.isRunning()) {
        m_closing = true;
        m_work.cancel();
        if (!m_busy) // the work is somebody else's
            connect(&m_work, &desktop::Work::ended, this, &QWidget::close,
                    static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        event->ignore();
        return;
    }
    m_closing = false;
    m_host.inischreiben(m_host.ownSettingsFile(), Section, ZoomKey, zoomText(*m_view));
    m_host.fensteroben(windowHandle(), NotOnTop, false);
    if (m_host.Hauptform != nullptr) {
        QWidget &main = m_host.Hauptform->fenster();
        main.show();
        m_host.fensteroben(main.windowHandle(), OnTop, true);
    }
    event->accept();
}

} // namespace kalvenor::settings
