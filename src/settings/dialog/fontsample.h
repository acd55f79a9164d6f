// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/textface.h"
#include <optional>
#include <QWidget>

namespace kalvenor::settings {

/// A line of text on white paper, drawn as the pages draw it.
class FontSample : public QWidget {
    Q_OBJECT
public:
    explicit FontSample(QWidget *parent = nullptr);

    void setText(const QString &text);
    void setStyle(const print::TextStyle &style);
    print::TextStyle style() const { return m_face ? m_face->style() : print::TextStyle(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
    std::optional<print::TextFace> m_face;
};

} // namespace kalvenor::settings
