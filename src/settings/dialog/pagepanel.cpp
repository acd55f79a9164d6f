// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/pagepanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "settings/dialog/lengthbox.h"
#include "settings/store/druckvorgaben.h"
#include <algorithm>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

using language::setDesignText;

constexpr double WidestMargin = 500; // millimetres
constexpr std::array<print::Twips print::PageSetup::*, 4> Margins = {
    &print::PageSetup::left, &print::PageSetup::top, &print::PageSetup::right, &print::PageSetup::bottom};
constexpr std::pair<const char *, Text> MarginNames[] = {{"Links", Text::MarginLeft},
                                                         {"Oben", Text::MarginTop},
                                                         {"Rechts", Text::MarginRight},
                                                         {"Unten", Text::MarginBottom}};
static_assert(std::size(MarginNames) == Margins.size());

} // namespace

PaperSketch::PaperSketch(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(180, 180);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PaperSketch::setPage(const print::PageSetup &page)
{
    m_page = page;
    update();
}

void PaperSketch::paintEvent(QPaintEvent *)
{
    QSizeF paper(m_page.paperWidth, m_page.paperHeight);
    if (m_page.landscape)
        paper.transpose();
    constexpr double Border = 6;
    const double scale = std::min((width() - 2 * Border) / std::max(m_page.paperWidth, m_page.paperHeight),
                                  (height() - 2 * Border) / std::max(m_page.paperWidth, m_page.paperHeight));
    QPainter painter(this);
    painter.translate((width() - paper.width() * scale) / 2, (height() - paper.height() * scale) / 2);
    const QRectF sheet({}, paper * scale);
    painter.fillRect(sheet, Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet);
    const QRectF text(QPointF(m_page.left, m_page.top) * scale,
                      QPointF(paper.width() - m_page.right, paper.height() - m_page.bottom) * scale);
    if (!leavesRoom(m_page)) {
        painter.fillRect(sheet, QColor(255, 200, 200));
        return;
    }
    // Lines of text
    painter.setClipRect(text);
    for (int line = 0; line < text.height() / 6; ++line)
        painter.fillRect(QRectF(text.left(), text.top() + 2 + 6 * line, text.width(), 2), QColor(190, 190, 200));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(90, 120, 190), 1, Qt::DashLine));
    painter.drawRect(text);
}

PagePanel::PagePanel(language::Sprachmodul &texts, QWidget *parent) : QWidget(parent)
{
    auto *marginGroup = new QGroupBox(this);
    setDesignText(marginGroup, Text::Margins);
    auto *form = new QFormLayout(marginGroup);
    for (std::size_t i = 0; i < m_margins.size(); ++i) {
        m_margins[i] = new LengthBox(WidestMargin, 1, marginGroup);
        m_margins[i]->setObjectName(QLatin1String(MarginNames[i].first));
        m_margins[i]->setSuffix(u' ' + texts.text(Text::Millimetres));
        auto *label = new QLabel(marginGroup);
        setDesignText(label, MarginNames[i].second);
        label->setBuddy(m_margins[i]);
        form->addRow(label, m_margins[i]);
        connect(m_margins[i], &LengthBox::valueChanged, this, &PagePanel::showPage);
    }

    auto *orientationGroup = new QGroupBox(this);
    setDesignText(orientationGroup, Text::Orientation);
    auto *upright = new QVBoxLayout(orientationGroup);
    m_orientations = {new QRadioButton(orientationGroup), new QRadioButton(orientationGroup)};
    setDesignText(m_orientations[0], Text::Portrait);
    setDesignText(m_orientations[1], Text::Landscape);
    for (std::size_t i = 0; i < m_orientations.size(); ++i) {
        m_orientations[i]->setObjectName(u"Ausrichtung_%1"_s.arg(i));
        upright->addWidget(m_orientations[i]);
    }
    connect(m_orientations[1], &QRadioButton::toggled, this, &PagePanel::showPage);

    m_sketch = new PaperSketch(this);
    auto *left = new QVBoxLayout;
    left->addWidget(marginGroup);
    left->addWidget(orientationGroup);
    left->addStretch(1);
    auto *both = new QHBoxLayout(this);
    both->addLayout(left);
    both->addWidget(m_sketch, 1);
}

void PagePanel::setPage(const print::PageSetup &page)
{
    m_page = page;
    for (std::size_t i = 0; i < m_margins.size(); ++i)
        m_margins[i]->setTwips(page.*Margins[i]);
    m_orientations[page.landscape ? 1 : 0]->setChecked(true);
    showPage();
}

print::PageSetup PagePanel::page() const
{
    print::PageSetup page = m_page;
    for (std::size_t i = 0; i < m_margins.size(); ++i)
        page.*Margins[i] = m_margins[i]->wholeTwips();
    page.landscape = m_orientations[1]->isChecked();
    return page;
}

void PagePanel::showPage()
{
    m_sketch->setPage(page());
}

} // namespace kalvenor::settings
