// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include <QObject>
#include <QRect>

class QWidget;

namespace kalvenor::host {

/// The place moved and cut so that it lies in the space with the frame around it. The corner is the frame's, the size
/// the window's own.
QRect fittedPlace(QRect wanted, const QRect &space);

/// Keeps place and size of a window in the section `Fenster` of the program's own settings, under keys that begin with
/// the window's name: they are taken when this is made, and written when the window closes, of a dialog only where its
/// size was changed. The window never opens larger than its screen.
class WindowPlace : public QObject {
public:
    /// `first` is the size without settings. The window owns this.
    WindowPlace(QWidget &window, const Host &host, const QString &name, QSize first);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restore(QSize first);
    void save() const;
    QString key(const QString &what) const { return m_name + what; }

    QWidget &m_window;
    const Host &m_host;
    const QString m_name;
    QSize m_opened; ///< the size it opened with
};

} // namespace kalvenor::host
