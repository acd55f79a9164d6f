// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/sprache.h"
#include "platform/jet/creator.h"
#include "support/fakedesktop.h"
#include <optional>
#include <QTemporaryDir>
#include <vector>

namespace kalvenor::test {

struct TextRow {
    int id;
    std::optional<QString> deutsch, english; ///< nothing = null
};

/// The texts of an open language database with these rows, which shows short help.
struct Texts {
    explicit Texts(const std::vector<TextRow> &rows, const QString &language = QStringLiteral("Deutsch"))
    {
        using jet::ColumnType;
        jet::Creator creator;
        auto &languages =
            creator.addTable(QStringLiteral("Languages"),
                             {{.name = QStringLiteral("Counter")},
                              {.name = QStringLiteral("Deutsch"), .type = ColumnType::Text},
                              {.name = QStringLiteral("English"), .type = ColumnType::Text}},
                             {{.name = QStringLiteral("Counter"), .columns = {QStringLiteral("Counter")}}});
        const auto cell = [](const auto &text) {
            return text ? jet::NewValue(*text) : jet::NewValue();
        };
        for (const TextRow &row : rows)
            languages.addRow({row.id, cell(row.deutsch), cell(row.english)});
        creator.write(folder.filePath(QStringLiteral("texts.mdb")));
        host.Sprache = language;
        module.spracheoeffnen(windowsPath(folder.filePath(QStringLiteral("texts.mdb"))));
    }

    QTemporaryDir folder;
    FakeDesktop desktop;
    host::Host host{windowsPath(folder.filePath(QStringLiteral("Kalvenor"))), desktop};
    dao::Engine engine;
    language::Sprachmodul module{host, engine};
};

} // namespace kalvenor::test
