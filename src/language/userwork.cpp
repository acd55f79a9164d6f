// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/userwork.h"

#include "language/form.h"
#include <new>

namespace kalvenor::language {

bool runAndTell(Work &work, const host::Host &host, Sprachmodul &texts, const QString &what, const Work::Task &task,
                const WorkTold &told)
{
    const auto tell = [&](const Error &error) {
        host.desktop().messageBox(told.inPlainWords ? told.inPlainWords(error) : error.message(), MessageCritical,
                                  shownText(texts, 21020, QStringLiteral("Fehler")));
    };
    try {
        return work.run(what, task, told.input);
    } catch (const Error &error) {
        if (error.kind() == ErrorKind::Cancelled)
            told.said(shownText(texts, 20348, QStringLiteral("Abgebrochen")));
        else
            tell(error);
    } catch (const std::bad_alloc &) {
        tell(Error(ErrorKind::Overflow, {}, QStringLiteral("There is not enough memory for this.")));
    }
    return false;
}

} // namespace kalvenor::language
