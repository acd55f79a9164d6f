// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/fontpanel.h"

#include "data/datevalue.h"
#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/basic/number.h"
#include "settings/dialog/colorbutton.h"
#include "settings/dialog/fontsample.h"
#include "settings/dialog/lengthbox.h"
#include <algorithm>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

using language::setDesignText;

constexpr Text ElementNames[] = {
    Text::ElementTitle, Text::ElementCriteriaHeading, Text::ElementCriteria, Text::ElementAgeListHeading,
    Text::AgeList,      Text::ElementHeader,          Text::ElementFooter};
static_assert(std::size(ElementNames) == FontElements.size());

/// Whether the system has the font or a stand-in made for it, rather than any font at all.
bool isAvailable(const QString &family)
{
    if (QFontDatabase::hasFamily(family))
        return true;
    static const QString lastResort = QFontInfo(QFont(u"no font has this name"_s)).family();
    return QFontInfo(QFont(family)).family() != lastResort;
}

QLabel *note(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    return label;
}

} // namespace

FontPanel::FontPanel(desktop::Desktop &desktop, language::Sprachmodul &texts, QWidget *parent)
    : QWidget(parent), m_texts(texts)
{
    build(desktop);
    layOut();

    connect(m_elements, &QListWidget::currentRowChanged, this, &FontPanel::fill);
    // Not currentFontChanged, which names what the system shows for an unknown font.
    connect(m_family, &QFontComboBox::editTextChanged, this,
            [this](const QString &name) { edit(&FontTexts::Fontname, name); });
    connect(m_size, &QDoubleSpinBox::valueChanged, this,
            [this](double size) { edit(&FontTexts::Fontsize, basic::trimmedNumberText(size)); });
    for (const Switch &item : m_switches)
        connect(item.box, &QCheckBox::toggled, this,
                [this, item](bool on) { edit(item.text, on ? u"#True#"_s : u"#False#"_s); });
    connect(m_color, &ColorButton::picked, this,
            [this](const QColor &color) { edit(&FontTexts::Fontcolor, settingsColorText(color)); });
    connect(m_background, &ColorButton::picked, this,
            [this](const QColor &color) { edit(&FontTexts::Backcolor, settingsColorText(color)); });
    m_elements->setCurrentRow(0);
}

void FontPanel::build(desktop::Desktop &desktop)
{
    m_elements = new QListWidget(this);
    m_elements->setObjectName(u"Element"_s);
    m_elements->setAccessibleName(m_texts.text(Text::SettingsFonts));
    for (const Text name : ElementNames)
        m_elements->addItem(m_texts.text(name));
    m_elements->setSpacing(2);
    m_elements->setFixedWidth(m_elements->sizeHintForColumn(0) + 24);

    m_family = new QFontComboBox(this);
    m_family->setObjectName(u"Fontname"_s);
    m_size = new NumberBox(SmallestFontSize, LargestFontSize, 2, this);
    m_size->setObjectName(u"Fontsize"_s);
    m_size->setSuffix(u" pt"_s);
    const auto box = [this](const char *name, Text caption, QString FontTexts::*text) {
        auto *made = new QCheckBox(this);
        made->setObjectName(QLatin1String(name));
        setDesignText(made, caption);
        return Switch{made, text};
    };
    m_switches = {box("Fontbold", Text::Bold, &FontTexts::Fontbold),
                  box("Fontitalic", Text::Italic, &FontTexts::Fontitalic),
                  box("Fontunderline", Text::Underline, &FontTexts::Fontunderline),
                  box("Fontstrikethru", Text::StrikeThrough, &FontTexts::Fontstrikethru)};
    m_color = new ColorButton(desktop, this);
    m_color->setObjectName(u"Fontcolor"_s);
    setDesignText(m_color, {}, Text::ChooseColour);
    m_background = new ColorButton(desktop, this);
    m_background->setObjectName(u"Backcolor"_s);
    setDesignText(m_background, {}, Text::ChooseColour);
    m_sample = new FontSample(this);
    m_sample->setObjectName(u"Muster"_s);
    m_sample->setText(m_texts.text(Text::SampleText));
    m_missing = note(this);
    m_missing->setObjectName(u"Schriftfehlt"_s);
    m_underline = note(this);
    setDesignText(m_underline, Text::UnderlineNote);
}

void FontPanel::layOut()
{
    auto *form = new QFormLayout;
    const auto row = [&](Text caption, QWidget *field) {
        auto *label = new QLabel(this);
        setDesignText(label, caption);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    auto *marks = new QWidget(this);
    auto *grid = new QGridLayout(marks);
    grid->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < m_switches.size(); ++i)
        grid->addWidget(m_switches[i].box, static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    grid->setColumnStretch(1, 1);

    row(Text::FontFamily, m_family);
    row(Text::FontSize, m_size);
    form->addRow(QString(), marks);
    row(Text::TextColour, m_color);
    row(Text::FontBackground, m_background);
    m_color->setAccessibleName(m_texts.text(Text::TextColour)); // their own text is a number
    m_background->setAccessibleName(m_texts.text(Text::FontBackground));
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);

    auto *right = new QVBoxLayout;
    right->addLayout(form);
    right->addWidget(m_missing);
    right->addWidget(m_sample, 1);
    right->addWidget(m_underline);
    auto *both = new QHBoxLayout(this);
    both->addWidget(m_elements);
    both->addLayout(right, 1);
}

Element FontPanel::element() const
{
    return FontElements[static_cast<std::size_t>(std::max(m_elements->currentRow(), 0))];
}

void FontPanel::setVorgaben(const Druckvorgaben &vorgaben)
{
    m_vorgaben = vorgaben;
    fill();
}

void FontPanel::takeInto(Druckvorgaben &vorgaben) const
{
    for (const Element each : FontElements)
        vorgaben.font(each) = m_vorgaben.font(each);
}

void FontPanel::fill()
{
    {
        const QScopedValueRollback quiet(m_filling, true);
        const print::TextStyle style = sampleStyle(font(), element());
        m_family->setEditText(style.family);
        m_size->setValue(style.pointSize);
        for (const Switch &item : m_switches)
            item.box->setChecked(data::textwahr(font().*item.text));
        m_color->setColor(style.color.isValid() ? style.color : QColor(Qt::black));
        m_background->setColor(style.background.isValid() ? style.background : QColor(Qt::white));
    }
    showSample();
}

void FontPanel::edit(QString FontTexts::*text, const QString &value)
{
    if (m_filling)
        return;
    font().*text = value;
    showSample();
}

void FontPanel::showSample()
{
    const print::TextStyle style = sampleStyle(font(), element());
    m_sample->setStyle(style);
    m_underline->setVisible(style.underline);
    m_missing->setVisible(!isAvailable(style.family));
    m_missing->setText(m_texts.text(Text::FontMissing).arg(style.family));
}

} // namespace kalvenor::settings
