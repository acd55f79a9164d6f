// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/windowprogram.h"

#include "app/start/hostlanguage.h"
#include "app/start/lastfolder.h"
#include "app/window/auswahl.h"
#include "app/window/firstrun.h"
#include "language/texts/errormessage.h"
#include "platform/desktop/appicon.h"
#include "platform/desktop/terminal.h"
#include "platform/desktop/widgetdesktop.h"
#include <cstdlib>
#include <memory>
#include <new>
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

constexpr int Failed = 1;

/// Qt ends the process where it finds no display; that shall be a line and an exit code, not a crash.
void endQuietly(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg)
        return;
    desktop::writeError(language::wording(language::Text::NoWindowPossible, systemLanguage()).arg(text.simplified()));
    std::_Exit(Failed);
}

bool mayHaveDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
    return false;
#else
    return true;
#endif
}

/// Where windows are drawn for nobody, nobody could answer a message box.
bool isUnattended()
{
    const QString platform = QGuiApplication::platformName();
    return platform == u"offscreen" || platform == u"minimal";
}

std::unique_ptr<desktop::Desktop> makeDesktop()
{
    if (isUnattended())
        return std::make_unique<desktop::TerminalDesktop>();
    return std::make_unique<desktop::WidgetDesktop>();
}

/// Qt's own dialogs in the language of the host.
void speakLanguage(const host::Host &host, QTranslator &translator)
{
    const QLocale locale = language::anzeigesprache(host);
    QLocale::setDefault(locale);
    QCoreApplication::removeTranslator(&translator);
    if (locale.language() == QLocale::German &&
        translator.load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

} // namespace

int runWindow(int &argc, char **argv, const QString &programFolder, const QString &templateFile)
{
    if (!mayHaveDisplay()) {
        desktop::writeError(language::wording(language::Text::NoDisplay, systemLanguage()));
        return Failed;
    }
    const QtMessageHandler before = qInstallMessageHandler(endQuietly);
    QApplication application(argc, argv);
    qInstallMessageHandler(before);
    QApplication::setApplicationName(u"Kalvenor"_s);
    QApplication::setApplicationDisplayName(u"Kalvenor"_s);
    QApplication::setDesktopFileName(u"kalvenor"_s);
    QApplication::setWindowIcon(desktop::applicationIcon());

    const std::unique_ptr<desktop::Desktop> desktop = makeDesktop();
    const QString executableFolder = QCoreApplication::applicationDirPath();
    const QString folder = programFolder.isEmpty() ? startFolder(executableFolder) : programFolder;
    QTranslator translator;
    std::unique_ptr<Auswahl> window;
    const std::unique_ptr<Program> program = startProgram(
        *desktop, {basic::windowsPath(folder)},
        [&](Program &starting) -> host::Hauptform * {
            try {
                speakLanguage(starting.host, translator);
                window = std::make_unique<Auswahl>(starting);
                window->show();
                // The window is to be seen before a long template begins.
                QTimer::singleShot(0, window.get(), [&window, templateFile] {
                    if (templateFile.isEmpty())
                        window->templates().openDefault();
                    else
                        window->templates().openFile(templateFile);
                });
            } catch (const basic::Error &error) {
                window.reset();
                language::reportError(*desktop, starting.language, error);
                throw;
            }
            return window.get();
        },
        [&translator](const host::Host &host) { speakLanguage(host, translator); });
    if (!program || !window)
        return Failed;
    if (!isUnattended())
        rememberFolder(program->host.native(program->host.programFolder()), executableFolder);
    const int code = QApplication::exec();
    window.reset(); // before the program that it shows
    return code;
}

} // namespace kalvenor::app
