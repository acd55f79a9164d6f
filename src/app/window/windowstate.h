// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include <vector>

class QMainWindow;
class QSplitter;

// Place and size of the main window, kept as plain numbers in the section "Fenster" of the program's own settings.
namespace kalvenor::app {

/// Puts the window where it was, as far as a screen still shows that place; the first time it gets its own size. Either
/// is bounded by what the screen has room for.
void restoreWindow(QMainWindow &window, const host::Host &host);
/// Sizes of a splitter's parts under a key of their own; passed over where the number of parts is another one.
void restoreSplitter(QSplitter &splitter, const QString &key, const host::Host &host);
/// The sizes alone, of so many parts; else none.
QList<int> keptSizes(const QString &key, qsizetype parts, const host::Host &host);

struct KeptSplitter {
    const QSplitter &splitter;
    QString key;
};
/// Everything in one write.
void saveWindow(const QMainWindow &window, const std::vector<KeptSplitter> &splitters, const host::Host &host);

} // namespace kalvenor::app
