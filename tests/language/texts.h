// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/catalogue.h"
#include "language/texts/sprache.h"
#include "platform/jet/creator/creator.h"
#include "support/fakedesktop.h"
#include <optional>
#include <QTemporaryDir>
#include <vector>

namespace kalvenor::test {

using namespace Qt::StringLiterals;

struct TextRow {
    int id;
    std::optional<QString> deutsch, english; ///< nothing = null
};

/// As a complete host installation has them.
inline std::vector<TextRow> catalogueRows()
{
    std::vector<TextRow> rows;
    for (const language::CatalogueText &text : language::catalogue())
        rows.push_back({static_cast<int>(text.id), QString::fromUtf16(text.deutsch), QString::fromUtf16(text.english)});
    return rows;
}

/// The texts of an open language database with these rows, which shows short help.
struct Texts {
    explicit Texts(const std::vector<TextRow> &rows, const QString &language = u"Deutsch"_s)
    {
        using jet::ColumnType;
        jet::Creator creator;
        auto &languages = creator.addTable(u"Languages"_s,
                                           {{.name = u"Counter"_s},
                                            {.name = u"Deutsch"_s, .type = ColumnType::Text},
                                            {.name = u"English"_s, .type = ColumnType::Text}},
                                           {{.name = u"Counter"_s, .columns = {u"Counter"_s}}});
        const auto cell = [](const auto &text) {
            return text ? jet::NewValue(*text) : jet::NewValue();
        };
        for (const TextRow &row : rows)
            languages.addRow({row.id, cell(row.deutsch), cell(row.english)});
        creator.write(folder.filePath(u"texts.mdb"_s));
        host.Sprache = language;
        module.spracheoeffnen(basic::windowsPath(folder.filePath(u"texts.mdb"_s)));
    }

    QTemporaryDir folder;
    FakeDesktop desktop;
    host::Host host{basic::windowsPath(folder.filePath(u"Kalvenor"_s)), desktop};
    dao::Engine engine;
    language::Sprachmodul module{host, engine};
};

} // namespace kalvenor::test
