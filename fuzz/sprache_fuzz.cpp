// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a language database: it is refused, or every text is looked up in it; none of our own is missing, and
// every error has its sentence.
#include "language/texts/errormessage.h"
#include "memorystorage.h"
#include <cstdlib>

using namespace kalvenor;
using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static MemoryStorage storage;
    static desktop::TerminalDesktop desktop;
    static const host::Host *const host = [] {
        static host::Host made(basic::WindowsPath(u"\\nowhere\\Kalvenor"_s), desktop);
        made.Sprache = u"Deutsch"_s;
        return &made;
    }();
    static const basic::WindowsPath file(u"\\nowhere\\language.mdb"_s);
    static const QString native = host->native(file);
    storage.fill(native, data, size);
    dao::Engine engine;
    language::Sprachmodul texts(*host, engine);
    try {
        texts.spracheoeffnen(file);
    } catch (const basic::Error &error) {
        if (language::errorMessage(texts, error).isEmpty())
            std::abort();
        return 0;
    }
    for (const language::CatalogueText &entry : language::catalogue()) {
        const QVariant shown = texts.shownText(static_cast<qint16>(entry.id));
        if (static_cast<qint16>(entry.id) >= language::FirstOwnText && (shown.isNull() || shown.toString() == u"????"))
            std::abort();
    }
    for (const qint64 day : {-657434LL, 0LL, 2958465LL})
        texts.dayInWords(day);
    for (const language::CatalogueText &entry : language::faultTexts()) {
        const basic::Error error(basic::Fault(static_cast<int>(entry.id)), {.file = u"%1"_s, .table = u"%2"_s},
                                 {u"%3"_s, 4, u"#PROGNAME#"_s});
        language::errorMessage(texts, error);
    }
    return 0;
}
