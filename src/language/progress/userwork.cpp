// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/progress/userwork.h"

#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include <new>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

bool runAndTell(desktop::Work &work, const host::Host &host, Sprachmodul &texts, const QString &what,
                const desktop::Work::Task &task, const WorkTold &told)
{
    const auto tell = [&](const basic::Error &error) {
        host.desktop().messageBox(told.inPlainWords ? told.inPlainWords(error) : errorMessage(texts, error),
                                  desktop::MessageCritical,
                                  told.title.isEmpty() ? texts.text(Text::Error) : told.title);
    };
    try {
        return work.run(what, task, told.input);
    } catch (const basic::Error &error) {
        if (error.kind() == basic::ErrorKind::Cancelled)
            told.said(texts.text(Text::Cancelled));
        else
            tell(error);
    } catch (const std::bad_alloc &) {
        tell(basic::Error(basic::Fault::OutOfMemory));
    }
    return false;
}

} // namespace kalvenor::language
