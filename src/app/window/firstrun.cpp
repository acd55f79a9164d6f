// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/firstrun.h"

#include "app/start/databasefault.h"
#include "app/start/hostlanguage.h"
#include "app/start/lastfolder.h"
#include "demo/host/demohost.h"
#include "language/forms/widgetform.h"
#include "language/progress/progresspanel.h"
#include "language/texts/errormessage.h"
#include "platform/desktop/appicon.h"
#include "platform/desktop/lineicon.h"
#include "platform/desktop/terminal.h"
#include <new>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

using language::Text;

namespace {

constexpr int PictureSide = 48;
constexpr int TextWidth = 460;
constexpr qreal HeadingScale = 1.5;
constexpr int WayMargins = 24;
constexpr int WaySpacing = 4;
const QString OwnFolder = u"/Kalvenor"_s;

/// A path may be broken behind each folder, so that it fits the dialog.
QString breakable(QString text)
{
    const QChar zeroWidthSpace(0x200B);
    return text.replace(u'/', QString(u'/') + zeroWidthSpace).replace(u'\\', QString(u'\\') + zeroWidthSpace);
}

QLabel *makeLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(TextWidth);
    return label;
}

const QString English = u"English"_s;

bool isGerman(const host::Host &host)
{
    return language::anzeigesprache(host).language() == QLocale::German;
}

} // namespace

StartProblem startProblem(Program &program, const std::optional<basic::Error> &error)
{
    const host::Host &host = program.host;
    if (!hasHost(host.native(host.programFolder())))
        return {.noHost = true};
    const basic::WindowsPath &family = host.Familienpfad;
    const QString settings = host.native(host.hostSettingsFile());
    if (error) {
        const bool inFamily = error->place().file == host.native(family) && !family.isEmpty();
        return {.text = databaseFault(program, *error, family),
                .details = language::errorMessage(program.language, *error),
                .anotherFamilyHelps = inFamily};
    }
    if (family.isEmpty())
        return {.text = host.dir(host.hostSettingsFile()).isEmpty()
                            ? program.language.text(Text::HostSettingsMissing).arg(settings)
                            : program.language.text(Text::NoFamilyNamed).arg(settings),
                .anotherFamilyHelps = true};
    return {.text =
                databaseFault(program, basic::Error(basic::Fault::FileMissing, {.file = host.native(family)}), family),
            .anotherFamilyHelps = true};
}

FirstRun::FirstRun(Program &program, const StartProblem &problem, QWidget *parent)
    : QDialog(parent), m_program(program), m_work(program.host.desktop()), m_problem(makeLabel("Problem", this)),
      m_details(makeLabel("Einzelheiten", this))
{
    setObjectName(u"Ersterstart"_s);
    language::setDesignText(this, problem.noHost ? Text::Welcome : Text::AgeStatistic);
    setWindowIcon(desktop::applicationIcon());
    build(problem);
    language::formuebersetzen(*this, program.language, program.host);
    unsetCursor();
    showProblem(problem.text, problem.details);
}

QLayout *FirstRun::makeWelcome()
{
    auto *heading = makeLabel("Willkommen", this);
    QFont large = heading->font();
    large.setPointSizeF(large.pointSizeF() * HeadingScale);
    large.setBold(true);
    heading->setFont(large);
    language::setDesignText(heading, Text::WelcomeHeading);
    auto *what = makeLabel("Worum", this);
    language::setDesignText(what, Text::WelcomeText);
    auto *safe = makeLabel("Unveraendert", this);
    language::setDesignText(safe, Text::WelcomeSafe);
    auto *column = new QVBoxLayout;
    column->addWidget(heading);
    column->addWidget(what);
    column->addWidget(safe);
    return column;
}

QPushButton *FirstRun::addWay(const char *name, const QString &description)
{
    auto *button = new QCommandLinkButton(this);
    button->setObjectName(QLatin1String(name));
    button->setDescription(description);
    // Its own minimum leaves the description out, its hint reckons with many lines of it.
    button->setFixedHeight(2 * button->fontMetrics().lineSpacing() + WayMargins);
    m_ways->addWidget(button);
    return button;
}

/// The hosts used last, none that could not be used now.
void FirstRun::addRecentHosts(const StartProblem &problem)
{
    QStringList folders = recentFolders();
    if (!problem.noHost)
        folders.removeAll(m_program.host.native(m_program.host.programFolder()));
    if (folders.isEmpty())
        return;
    auto *caption = new QLabel(this);
    language::setDesignText(caption, Text::HostsUsedLast);
    m_ways->addWidget(caption);
    for (qsizetype i = 0; i < folders.size(); ++i) {
        const QString folder = folders[i];
        auto *button = new QPushButton(this);
        button->setObjectName(u"Zuletzt_%1"_s.arg(i));
        button->setIcon(desktop::lineIcon(desktop::LineIcon::Open));
        button->setText(QDir::toNativeSeparators(QFileInfo(folder).path()).replace(u'&', u"&&"_s));
        button->setFlat(true);
        button->setStyleSheet(u"text-align: left"_s);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // a path may be long
        button->setToolTip(button->text());
        m_ways->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, folder] { leadOn({basic::windowsPath(folder)}); });
    }
}

void FirstRun::build(const StartProblem &problem)
{
    auto *picture = new QLabel(this);
    picture->setPixmap(windowIcon().pixmap(QSize(PictureSide, PictureSide), devicePixelRatioF()));
    auto *column = new QVBoxLayout;
    if (problem.noHost)
        column->addLayout(makeWelcome());
    column->addWidget(m_problem);
    column->addWidget(m_details);
    column->addSpacing(8);
    m_ways = new QVBoxLayout;
    m_ways->setSpacing(WaySpacing);
    column->addLayout(m_ways);
    addRecentHosts(problem);
    auto *family = addWay("Familiewaehlen", m_program.language.text(Text::ChooseFamilyTip));
    language::setDesignText(family, Text::ChooseFamily);
    connect(family, &QPushButton::clicked, this, &FirstRun::chooseFamily);
    auto *host = addWay("Hostwaehlen", m_program.language.text(Text::HostFolderTip));
    language::setDesignText(host, Text::ChooseHostFolder);
    connect(host, &QPushButton::clicked, this, &FirstRun::chooseHost);
    auto *demo = addWay("Beispieldaten", m_program.language.text(Text::MakeDemoTip));
    language::setDesignText(demo, Text::MakeDemo);
    connect(demo, &QPushButton::clicked, this, &FirstRun::makeDemonstration);
    family->setVisible(problem.anotherFamilyHelps);
    auto *recent = findChild<QPushButton *>(u"Zuletzt_0"_s);
    QPushButton *first = problem.anotherFamilyHelps ? family : recent != nullptr ? recent : host;
    first->setDefault(true);
    first->setFocus();

    auto *quit = new QPushButton(this);
    quit->setObjectName(u"Beenden"_s);
    language::setDesignText(quit, Text::Quit);
    quit->setAutoDefault(false);
    connect(quit, &QPushButton::clicked, this, &FirstRun::reject);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(new language::ProgressPanel(m_work, this));
    bottom->addStretch();
    bottom->addWidget(quit);

    auto *top = new QHBoxLayout;
    top->setSpacing(18);
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addLayout(column, 1);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(18, 18, 18, 14);
    all->setSpacing(12);
    all->addLayout(top, 1);
    all->addLayout(bottom);
}

void FirstRun::showProblem(const QString &what, const QString &details)
{
    m_problem->setText(breakable(what));
    m_problem->setVisible(!what.isEmpty());
    m_details->setText(breakable(details));
    m_details->setVisible(!details.isEmpty() && details != what);
}

void FirstRun::leadOn(const StartPlace &place)
{
    m_place = place;
    accept();
}

void FirstRun::reject()
{
    if (m_work.isRunning())
        m_work.cancel();
    else
        QDialog::reject();
}

void FirstRun::chooseFamily()
{
    const host::Host &host = m_program.host;
    const basic::WindowsPath former = host.Familienpfad.isEmpty() ? host.Hostverzeichnis : host.Familienpfad;
    const QString file = host.desktop().openFileName(this, {.title = m_program.language.text(Text::OpenFamily),
                                                            .folder = QFileInfo(host.native(former)).absolutePath(),
                                                            .filters = m_program.language.text(Text::FamilyDatabases)});
    if (!file.isEmpty())
        leadOn({host.programFolder(), host.windows(file)});
}

void FirstRun::chooseHost()
{
    const QString folder =
        m_program.host.desktop().chooseFolder(this, {.title = m_program.language.text(Text::HostFolderTip),
                                                     .folder = m_program.host.native(m_program.host.Hostverzeichnis)});
    if (folder.isEmpty())
        return;
    // The program's own folder, or the one in which demonstration data were made, are as good an answer.
    for (const QString &own : {folder + OwnFolder, folder, folder + u"/QV"_s + OwnFolder}) {
        if (!hasHost(own))
            continue;
        QDir().mkpath(own); // without it print settings are not kept; that hinders nothing here
        leadOn({basic::windowsPath(own)});
        return;
    }
    showProblem(m_program.language.text(Text::NoHostInFolder).arg(folder), {});
}

void FirstRun::makeDemonstration()
{
    const QString title = m_program.language.text(Text::ChooseDemoFolder);
    const QString folder = m_program.host.desktop().chooseFolder(this, {.title = title, .folder = QDir::homePath()});
    if (folder.isEmpty())
        return;
    demo::DemoHost made;
    QString failure;
    try {
        showProblem(m_program.language.text(Text::MakingDemo), {});
        if (!m_work.run(
                {}, [&](const basic::Progress &progress) { made = demo::makeDemoHost({.folder = folder}, progress); }))
            return;
    } catch (const basic::Error &error) {
        failure = error.kind() == basic::ErrorKind::Cancelled ? m_program.language.text(Text::Cancelled)
                                                              : language::errorMessage(m_program.language, error);
    } catch (const std::bad_alloc &) {
        failure = language::errorMessage(m_program.language, basic::Error(basic::Fault::OutOfMemory));
    }
    if (!failure.isEmpty()) {
        showProblem(failure, {});
        return;
    }
    const host::Host &host = m_program.host;
    if (!isGerman(host))
        host.inischreiben(basic::windowsPath(made.hostFolder) + u"\\programm.ini"_s, u"Ansicht"_s, u"Sprache"_s,
                          English);
    host.desktop().messageBox(m_program.language.text(Text::DemoMade).arg(made.hostFolder), 0, {});
    leadOn({basic::windowsPath(made.programFolder)});
}

std::unique_ptr<Program> startProgram(desktop::Desktop &desktop, StartPlace place,
                                      const std::function<host::Hauptform *(Program &)> &showMainWindow,
                                      const std::function<void(const host::Host &)> &beforeQuestion)
{
    for (;;) {
        auto program = std::make_unique<Program>(place.programFolder, desktop);
        program->chosenFamily = place.family;
        std::optional<basic::Error> failure;
        try {
            if (program->Main([&] { return showMainWindow(*program); }))
                return program;
        } catch (const basic::Error &error) {
            failure = error;
        } catch (const std::bad_alloc &) {
            failure = basic::Error(basic::Fault::OutOfMemory);
        }
        speakAsHost(program->host);
        if (beforeQuestion)
            beforeQuestion(program->host);
        const StartProblem problem = startProblem(*program, failure);
        // Who has no host yet is welcomed, not met with an error number.
        if (failure && problem.noHost)
            desktop::writeError(language::errorMessage(program->language, *failure));
        else if (failure)
            language::reportError(desktop, program->language, *failure);
        FirstRun dialog(*program, problem);
        if (!desktop.runDialog(dialog))
            return nullptr;
        place = dialog.place();
    }
}

} // namespace kalvenor::app
