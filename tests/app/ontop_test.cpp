// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/auswahl.h"
#include "platform/desktop/widgetdesktop.h"
#include "selection/panel/personlistpanel.h"
#include "selection/panel/selectionpanel.h"
#include "settings/preview/druckvorschau.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

using namespace kalvenor;

namespace {

/// What the window system itself says of a window, or of the screen.
QString told(const QWidget *window, const char *property)
{
    QProcess xprop;
    const QStringList whose =
        window == nullptr ? QStringList{"-root"} : QStringList{"-id", QString::number(window->windowHandle()->winId())};
    xprop.setProcessChannelMode(QProcess::MergedChannels);
    xprop.start(u"xprop"_s, whose + QStringList{QString::fromLatin1(property)});
    EXPECT_TRUE(xprop.waitForFinished());
    return QString::fromLatin1(xprop.readAllStandardOutput()).trimmed();
}

bool isOnTop(const QWidget *window)
{
    return told(window, "_NET_WM_STATE").contains(u"_NET_WM_STATE_ABOVE");
}

QString idOf(const QWidget *window)
{
    return u"0x%1"_s.arg(window->windowHandle()->winId(), 0, 16);
}

/// No other window covers it.
bool isFrontmost(const QWidget *window)
{
    return told(nullptr, "_NET_CLIENT_LIST_STACKING").endsWith(idOf(window));
}

struct OnTop : testing::Test, test::Installation {
    OnTop() : Installation({{.counter = 1, .listname = "A", .marked = true}}) {}
    void SetUp() override
    {
        if (QGuiApplication::platformName() != u"xcb" || QStandardPaths::findExecutable("xprop").isEmpty())
            GTEST_SKIP()
                << "asks an X server with xprop: part of Desktop.Window (apt-get install xvfb openbox x11-utils)";
        program.host.inischreiben(settings(), "Ansicht", "AddInonTop", "1");
        program.Main([this] {
            window = std::make_unique<app::Auswahl>(program);
            window->show();
            return window.get();
        });
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    /// Carries the command out and looks at the dialog that it shows, which is then given up.
    void expectDialogInFront(QWidget &owner, const char *command)
    {
        SCOPED_TRACE(command);
        QString seen;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || !dialog->windowHandle()->isExposed())
                return;
            look.stop();
            seen = dialog->objectName() + dialog->metaObject()->className();
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->isActiveWindow() && isFrontmost(dialog); }, 3000));
            EXPECT_TRUE(told(nullptr, "_NET_CLIENT_LIST_STACKING").endsWith(idOf(&owner) + ", " + idOf(dialog)))
                << "no other window between the two";
            qobject_cast<QDialog *>(dialog)->reject();
        });
        look.start(20);
        owner.findChild<QAction *>(QLatin1String(command))->trigger();
        look.stop();
        EXPECT_FALSE(seen.isEmpty()) << "no dialog";
    }
    void expectOnTopAndActive(const QWidget &shown)
    {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return shown.isActiveWindow() && isOnTop(&shown) && isFrontmost(&shown); }, 3000))
            << told(&shown, "_NET_WM_STATE").toStdString();
    }

    desktop::WidgetDesktop desktop;
    app::Program program{programFolder(), desktop};
    std::unique_ptr<app::Auswahl> window;
};

} // namespace

TEST_F(OnTop, IsToggledInPlace)
{
    expectOnTopAndActive(*window);
    const WId id = window->windowHandle()->winId();
    for (const int onTop : {0, -1}) {
        EXPECT_TRUE(program.host.fensteroben(window->windowHandle(), onTop, false));
        EXPECT_TRUE(QTest::qWaitFor([&] { return isOnTop(window.get()) == (onTop == -1); }, 3000));
        EXPECT_TRUE(window->isActiveWindow());
        EXPECT_EQ(window->windowHandle()->winId(), id) << "no new window";
    }
}

TEST_F(OnTop, HoldsForEveryWindowAndDialogsComeBeforeIt)
{
    expectOnTopAndActive(*window);
    for (const char *command : {"oeffnen", "Druckeinstellungen", "Tastenkuerzel", "Ueber", "Seitenansicht"}) {
        expectDialogInFront(*window, command);
        if (window->report().preview() == nullptr)
            expectOnTopAndActive(*window);
    }
    ASSERT_NE(window->report().preview(), nullptr);
    settings::Druckvorschau &preview = *window->report().preview();
    expectOnTopAndActive(preview);
    for (const char *command : {"save", "INI", "INITVorgaben", "drucker"}) {
        expectDialogInFront(preview, command);
        expectOnTopAndActive(preview);
    }
    EXPECT_TRUE(isOnTop(window.get()));
    window->panelaufruf(u"Hilfe"_s);
    for (const QWidget *help : QApplication::topLevelWidgets()) {
        if (help->objectName() == u"Hilfefenster")
            expectOnTopAndActive(*help);
    }
    preview.close();
    expectOnTopAndActive(*window);
}
