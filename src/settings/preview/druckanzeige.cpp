// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckanzeige.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

Druckanzeige::Druckanzeige(const host::Host &host, desktop::Work &work, QWidget *parent)
    : QDialog(parent), m_host(host), m_work(work), m_device(new QLabel(this)), m_page(new QLabel(this)),
      m_bar(new QProgressBar(this)), m_cancel(new QPushButton(this))
{
    setObjectName(u"Druckanzeige"_s);
    m_device->setObjectName(u"Geraet"_s);
    m_device->setTextFormat(Qt::PlainText);
    m_page->setObjectName(u"Fortgang"_s);
    m_cancel->setObjectName(u"Druckabbrechen"_s);
    m_bar->setTextVisible(false);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_page);
    column->addWidget(m_device);
    column->addWidget(m_bar);
    column->addWidget(m_cancel, 0, Qt::AlignRight);
    setMinimumWidth(360);
    work.letThrough(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &Druckanzeige::reject);
    connect(&work, &desktop::Work::advanced, this, &Druckanzeige::advance);
    connect(&work, &desktop::Work::ended, this, [this] {
        m_active = false;
        hide();
    });
}

void Druckanzeige::setTexts(const ControlTexts &texts)
{
    m_texts = texts;
    setWindowTitle(texts.printingCaption);
    m_cancel->setText(texts.cancel);
}

void Druckanzeige::begin(const QString &printer, const QString &place)
{
    m_active = true;
    m_device->setText(m_texts.deviceLine(printer, place));
}

void Druckanzeige::advance(qint64 done, qint64 total)
{
    if (!m_active)
        return;
    m_page->setText(m_texts.pageLine(static_cast<int>(done), static_cast<int>(total)));
    m_bar->setMaximum(static_cast<int>(total));
    m_bar->setValue(static_cast<int>(done));
    if (isVisible())
        return;
    show();
    m_host.fensteroben(windowHandle(), -1, false); // the other windows of the program may be there
}

void Druckanzeige::reject()
{
    m_work.cancel(); // the end of the work hides the dialog
}

} // namespace kalvenor::settings
