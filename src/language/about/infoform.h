// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/events/ereignisart.h"
#include "language/texts/sprache.h"
#include <QDialog>

class QTabWidget;

namespace kalvenor::language {

/// The about box: what the program is, what the event kinds' symbols mean, whose libraries it uses.
class Infoform : public QDialog {
    Q_OBJECT
public:
    /// Loads the event kinds where that has not been done; where it fails, the reason stands in their place.
    Infoform(const host::Host &host, Sprachmodul &texts, Ereignisarten &kinds, QWidget *parent = nullptr);

private:
    QWidget *makeAbout();
    QWidget *makeLegend(Ereignisarten &kinds, Sprachmodul &texts);
    QWidget *makeLibraries();
};

} // namespace kalvenor::language
