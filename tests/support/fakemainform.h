// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/hauptform.h"
#include <functional>
#include <QStringList>

namespace kalvenor::test {

/// Stands in the main window's place and writes down what is called.
struct FakeMainForm final : host::Hauptform {
    std::optional<basic::WindowsPath> auswahldrucken(const print::ExportTarget &target) override
    {
        calls << QStringLiteral("auswahldrucken");
        return compose ? compose(target) : std::nullopt;
    }
    void initladen() override { calls << QStringLiteral("initladen"); }
    bool initspeichern() override { return note(QStringLiteral("initspeichern")); }
    bool init() override { return note(QStringLiteral("init")); }
    void panelaufruf(const QString &thema) override { note(QStringLiteral("panelaufruf ") + thema); }
    QWidget &fenster() override { return *window; }

    bool note(const QString &call)
    {
        calls << call;
        return true;
    }

    QStringList calls;
    std::function<std::optional<basic::WindowsPath>(const print::ExportTarget &)> compose;
    QWidget *window = nullptr;
};

} // namespace kalvenor::test
