// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/texttools.h"

#include "language/forms/widgetform.h"
#include "platform/desktop/lineicon.h"
#include "statistics/introduction/textfield.h"
#include <algorithm>
#include <cmath>
#include <QAction>
#include <QActionGroup>
#include <QFontComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextList>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr double SmallestSize = 4;
constexpr double LargestSize = 200;

constexpr std::array Alignments{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};

struct NamedColor {
    Text caption;
    QRgb color; ///< 0: automatic
};
/// Each reads well on white paper.
constexpr NamedColor NamedColors[] = {{Text::ColourAutomatic, 0},       {Text::ColourDarkRed, 0xFF800000},
                                      {Text::ColourRed, 0xFFD00000},    {Text::ColourOrange, 0xFFC05A00},
                                      {Text::ColourGreen, 0xFF207520},  {Text::ColourTeal, 0xFF007878},
                                      {Text::ColourBlue, 0xFF1F5FC8},   {Text::ColourDarkBlue, 0xFF000080},
                                      {Text::ColourPurple, 0xFF7A2A90}, {Text::ColourGrey, 0xFF666666}};

QColor foregroundOf(const QTextCharFormat &format)
{
    return format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color() : QColor();
}

QIcon swatch(const QColor &color)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.setBrush(color.isValid() ? color : QColor(Qt::black));
    painter.drawRect(4, 4, 23, 23);
    return QIcon(pixmap);
}

} // namespace

TextTools::TextTools(TextField &field, QWidget *parent) : QToolBar(parent), m_field(field), m_menu(new QMenu(&field))
{
    setObjectName(u"Textwerkzeuge"_s);
    language::setDesignText(this, Text::TextFormats);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setIconSize(QSize(18, 18));
    makeFormats();
    makeAlignments();
    makeEditing();
    makeFonts();
    makeColors();
    arrange();
    makeMenu();
    connect(&field, &QTextEdit::currentCharFormatChanged, this, &TextTools::showFormats);
    connect(&field, &QTextEdit::cursorPositionChanged, this, &TextTools::showFormats);
    connect(&field, &QTextEdit::textChanged, this, &TextTools::showFormats);
    showFormats();
}

QAction *TextTools::make(const char *name, Text caption, const QIcon &icon, const QKeySequence &keys)
{
    auto *action = new QAction(icon, {}, this);
    action->setObjectName(QLatin1String(name));
    language::setDesignText(action, caption);
    // The field itself looks for the keys, so that the window's actions with the same ones do not stand in its way.
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
}

QAction *TextTools::makeTool(const char *name, Text caption, const QIcon &icon, const QKeySequence &keys)
{
    QAction *action = make(name, caption, icon, keys);
    language::setDesignText(action, {}, caption);
    return action;
}

QAction *TextTools::makeToggle(const char *name, Text caption, desktop::LineIcon icon, const QKeySequence &keys,
                               void (*apply)(QTextCharFormat &format, bool on))
{
    QAction *action = makeTool(name, caption, desktop::lineIcon(icon), keys);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, apply](bool on) {
        QTextCharFormat format;
        apply(format, on);
        merge(format);
    });
    return action;
}

void TextTools::makeFormats()
{
    m_bold =
        makeToggle("Fett", Text::Bold, desktop::LineIcon::Bold, Qt::CTRL | Qt::Key_B,
                   [](QTextCharFormat &format, bool on) { format.setFontWeight(on ? QFont::Bold : QFont::Normal); });
    m_italic = makeToggle("Kursiv", Text::Italic, desktop::LineIcon::Italic, Qt::CTRL | Qt::Key_I,
                          [](QTextCharFormat &format, bool on) { format.setFontItalic(on); });
    m_underline =
        makeToggle("Unterstrichen", Text::Underline, desktop::LineIcon::Underline, Qt::CTRL | Qt::Key_U,
                   [](QTextCharFormat &format, bool on) {
                       format.setUnderlineStyle(on ? QTextCharFormat::SingleUnderline : QTextCharFormat::NoUnderline);
                   });
    m_strikeOut = makeToggle("Durchgestrichen", Text::StrikeThrough, desktop::LineIcon::StrikeOut,
                             Qt::CTRL | Qt::SHIFT | Qt::Key_X,
                             [](QTextCharFormat &format, bool on) { format.setFontStrikeOut(on); });
    m_bullets = makeTool("Aufzaehlung", Text::Bullets, desktop::lineIcon(desktop::LineIcon::Bullets),
                         Qt::CTRL | Qt::SHIFT | Qt::Key_L);
    m_bullets->setCheckable(true);
    connect(m_bullets, &QAction::triggered, this, [this](bool on) {
        m_field.setBullets(on);
        showFormats();
    });
    m_plain = makeTool("Formateentfernen", Text::RemoveFormats, desktop::lineIcon(desktop::LineIcon::Plain),
                       Qt::CTRL | Qt::Key_Space);
    connect(m_plain, &QAction::triggered, &m_field, &TextField::removeFormats);
}

void TextTools::makeAlignments()
{
    m_alignments = {
        makeTool("Links", Text::AlignLeft, desktop::lineIcon(desktop::LineIcon::AlignLeft), Qt::CTRL | Qt::Key_L),
        makeTool("Zentriert", Text::AlignCentre, desktop::lineIcon(desktop::LineIcon::AlignCentre),
                 Qt::CTRL | Qt::Key_E),
        makeTool("Rechts", Text::AlignRight, desktop::lineIcon(desktop::LineIcon::AlignRight), Qt::CTRL | Qt::Key_R),
        makeTool("Blocksatz", Text::AlignJustify, desktop::lineIcon(desktop::LineIcon::Justify), Qt::CTRL | Qt::Key_J)};
    auto *group = new QActionGroup(this);
    for (std::size_t i = 0; i < m_alignments.size(); ++i) {
        m_alignments[i]->setCheckable(true);
        group->addAction(m_alignments[i]);
        connect(m_alignments[i], &QAction::triggered, this, [this, i] { m_field.setAlignment(Alignments[i]); });
    }
}

void TextTools::makeEditing()
{
    m_undo = makeTool("Textrueckgaengig", Text::Undo, desktop::lineIcon(desktop::LineIcon::Undo), Qt::CTRL | Qt::Key_Z);
    m_redo = makeTool("Textwiederherstellen", Text::Redo, desktop::lineIcon(desktop::LineIcon::Redo));
    m_redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    m_cut = make("Ausschneiden", Text::EditorCut, {}, QKeySequence::Cut);
    m_copy = make("Textkopieren", Text::EditorCopy, desktop::lineIcon(desktop::LineIcon::Copy), QKeySequence::Copy);
    m_paste = make("Einfuegen", Text::EditorPaste, {}, QKeySequence::Paste);
    m_pastePlain = make("Ohneformateeinfuegen", Text::PastePlain, {}, Qt::CTRL | Qt::SHIFT | Qt::Key_V);
    m_open = makeTool("Textoeffnen", Text::OpenTextMenu, desktop::lineIcon(desktop::LineIcon::Open));
    m_save = makeTool("Textspeichern", Text::SaveTextMenu, desktop::lineIcon(desktop::LineIcon::Save));
    connect(m_undo, &QAction::triggered, &m_field, &QTextEdit::undo);
    connect(m_redo, &QAction::triggered, &m_field, &QTextEdit::redo);
    connect(m_cut, &QAction::triggered, &m_field, &QTextEdit::cut);
    connect(m_copy, &QAction::triggered, &m_field, &QTextEdit::copy);
    connect(m_paste, &QAction::triggered, &m_field, &QTextEdit::paste);
    connect(m_pastePlain, &QAction::triggered, &m_field, &TextField::pastePlain);
    connect(m_open, &QAction::triggered, this, &TextTools::openWanted);
    connect(m_save, &QAction::triggered, this, &TextTools::saveWanted);
    for (QAction *action : {m_undo, m_redo, m_cut, m_copy})
        action->setEnabled(false);
    connect(&m_field, &QTextEdit::undoAvailable, m_undo, &QAction::setEnabled);
    connect(&m_field, &QTextEdit::redoAvailable, m_redo, &QAction::setEnabled);
    connect(&m_field, &QTextEdit::copyAvailable, m_cut, &QAction::setEnabled);
    connect(&m_field, &QTextEdit::copyAvailable, m_copy, &QAction::setEnabled);
}

void TextTools::makeFonts()
{
    m_family = new QFontComboBox(this);
    m_family->setObjectName(u"Schriftart"_s);
    m_family->setMaximumWidth(m_family->fontMetrics().averageCharWidth() * 20);
    language::setDesignText(m_family, Text::FontFamily, Text::FontFamily);
    connect(m_family, &QComboBox::textActivated, this, [this](const QString &family) {
        QTextCharFormat format;
        format.setFontFamilies({family});
        merge(format);
    });
    m_size = new QComboBox(this);
    m_size->setObjectName(u"Schriftgroesse"_s);
    m_size->setEditable(true);
    m_size->setInsertPolicy(QComboBox::NoInsert);
    m_size->setMinimumContentsLength(3);
    m_size->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_size->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_size->setMaxVisibleItems(16);
    language::setDesignText(m_size, Text::EditorFontSize, Text::EditorFontSize);
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48, 72})
        m_size->addItem(QString::number(size));
    connect(m_size, &QComboBox::textActivated, this, &TextTools::applySize);
    connect(m_size->lineEdit(), &QLineEdit::returnPressed, this, [this] { applySize(m_size->currentText()); });
}

void TextTools::makeColors()
{
    m_color = new QToolButton(this);
    m_color->setObjectName(u"Schriftfarbe"_s);
    m_color->setPopupMode(QToolButton::InstantPopup);
    language::setDesignText(m_color, {}, Text::TextColour);
    m_colors = new QMenu(m_color);
    for (const NamedColor &named : NamedColors) {
        const QColor color = named.color == 0 ? QColor() : QColor(named.color);
        QAction *action = m_colors->addAction(swatch(color), {});
        language::setDesignText(action, named.caption);
        connect(action, &QAction::triggered, this, [this, color] { applyColor(color); });
    }
    m_color->setMenu(m_colors);
}

void TextTools::arrange()
{
    addWidget(m_family);
    addWidget(m_size);
    addSeparator();
    addActions({m_bold, m_italic, m_underline, m_strikeOut});
    addWidget(m_color);
    addAction(m_plain);
    addSeparator();
    for (QAction *alignment : m_alignments)
        addAction(alignment);
    addAction(m_bullets);
    addSeparator();
    addActions({m_undo, m_redo});
    addSeparator();
    addActions({m_open, m_save});
    for (QWidget *button : {static_cast<QWidget *>(m_color), widgetForAction(m_open), widgetForAction(m_save)})
        button->setFocusPolicy(Qt::TabFocus); // no key of their own
}

void TextTools::makeMenu()
{
    m_menu->setObjectName(u"Textmenue"_s);
    m_menu->addActions({m_undo, m_redo});
    m_menu->addSeparator();
    m_menu->addActions({m_cut, m_copy, m_paste, m_pastePlain});
    m_menu->addSeparator();
    m_menu->addActions({m_bold, m_italic, m_underline, m_strikeOut, m_plain});
    m_menu->addSeparator();
    for (QAction *alignment : m_alignments)
        m_menu->addAction(alignment);
    m_menu->addAction(m_bullets);
    m_menu->addSeparator();
    m_menu->addActions({m_open, m_save});
    connect(m_menu, &QMenu::aboutToShow, this, [this] {
        m_paste->setEnabled(m_field.canPaste());
        m_pastePlain->setEnabled(m_field.canPaste());
    });
    // Closed again they must not keep the keys from working.
    connect(m_menu, &QMenu::aboutToHide, this, [this] {
        m_paste->setEnabled(true);
        m_pastePlain->setEnabled(true);
    });
    m_field.setContextMenu(m_menu);
}

void TextTools::merge(const QTextCharFormat &format)
{
    m_field.mergeCurrentCharFormat(format);
    m_field.setFocus();
    showFormats();
}

void TextTools::applySize(const QString &text)
{
    bool sound = false;
    const double size = QString(text).replace(u',', u'.').toDouble(&sound);
    if (sound && size > 0) {
        QTextCharFormat format;
        format.setFontPointSize(std::clamp(std::round(size * 2) / 2, SmallestSize, LargestSize));
        m_field.mergeCurrentCharFormat(format);
    }
    if (m_size->hasFocus()) // not where Tab has just left it, which ends its editing, too
        m_field.setFocus();
    showFormats();
}

void TextTools::applyColor(const QColor &color)
{
    QTextCharFormat format;
    // Merging cannot take a property away; no brush counts as none.
    format.setForeground(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    merge(format);
}

void TextTools::showFormats()
{
    const QTextCharFormat format = m_field.currentCharFormat();
    m_bold->setChecked(format.fontWeight() >= QFont::DemiBold);
    m_italic->setChecked(format.fontItalic());
    m_underline->setChecked(format.fontUnderline());
    m_strikeOut->setChecked(format.fontStrikeOut());
    m_bullets->setChecked(m_field.textCursor().currentList() != nullptr);
    const Qt::Alignment alignment = m_field.alignment();
    for (std::size_t i = 0; i < Alignments.size(); ++i)
        m_alignments[i]->setChecked(alignment.testFlag(Alignments[i]));

    const QFont usual = m_field.document()->defaultFont();
    const QString family = format.fontFamilies().toStringList().value(0, usual.family());
    const double size = format.fontPointSize() > 0 ? format.fontPointSize() : usual.pointSizeF();
    const QSignalBlocker quietFamily(m_family);
    const QSignalBlocker quietSize(m_size);
    m_family->setEditText(family);
    if (!m_size->lineEdit()->hasFocus())
        m_size->setEditText(locale().toString(size, 'g', 4));
    m_color->setIcon(desktop::lineIcon(desktop::LineIcon::TextColor, foregroundOf(format)));
}

} // namespace kalvenor::statistics
