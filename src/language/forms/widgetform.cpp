// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/widgetform.h"

#include <functional>
#include <set>
#include <utility>

#include "language/forms/designtext.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

/// Keeps the tooltip of a tool button empty, which otherwise takes the action's again whenever the action changes.
class TooltipSilencer : public QObject {
public:
    static void silence(QToolButton *button)
    {
        static const char *const silenced = "tooltipSilenced";
        button->setToolTip({});
        if (button->property(silenced).toBool())
            return;
        button->setProperty(silenced, true);
        button->installEventFilter(new TooltipSilencer(button));
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *button = qobject_cast<QToolButton *>(watched);
        if (button && event->type() == QEvent::ToolTipChange && !button->toolTip().isEmpty())
            button->setToolTip({});
        return false;
    }

private:
    using QObject::QObject;
};

/// A part of the form and the ways to show its texts.
struct Node {
    FormPart part;
    std::function<void(const QString &)> showCaption = {};
    std::function<void(const QString &)> showTooltip = {};
    std::vector<Node> items = {};
};

/// A tooltip without an identifier stands in the form as a text that no rule but the switch's touches, whatever digits
/// it may begin with.
QString tooltipOf(const QString &tag, const QString &shown)
{
    if (!tag.isEmpty() || shown.isEmpty())
        return tag;
    return u"shown"_s;
}

/// The caption that a form carries at design time: the identifier, directly followed by the German text.
QString designCaption(const QString &tag)
{
    return tag.isEmpty() ? QString() : tag + designTextOf(static_cast<Text>(tag.toShort()));
}

Node nodeOf(const QString &typeName, QObject *carrier)
{
    const QString tag = textProperty(carrier, Tag);
    return {.part = {.typeName = typeName,
                     .tag = tag,
                     .caption = designCaption(tag),
                     .tooltip = tooltipOf(textProperty(carrier, TooltipTag), textProperty(carrier, "toolTip"))},
            .showCaption = [=](const QString &shown) { language::showCaption(carrier, shown); },
            .showTooltip =
                [=](const QString &shown) {
                    carrier->setProperty("toolTip", shown);
                }};
}

Node tabNode(QTabBar *tabs, int index)
{
    const QVariantMap data = tabs->tabData(index).toMap();
    const auto value = [&](const char *key) {
        return data.value(QLatin1String(key)).toString();
    };
    return {.part = {.tag = value(Tag),
                     .caption = designCaption(value(Tag)),
                     .tooltip = tooltipOf(value(TooltipTag), tabs->tabToolTip(index))},
            .showCaption = [=](const QString &shown) { tabs->setTabText(index, shown); },
            .showTooltip =
                [=](const QString &shown) {
                    tabs->setTabToolTip(index, shown);
                }};
}

QHeaderView *headingsOf(QWidget *widget)
{
    if (auto *tree = qobject_cast<QTreeView *>(widget))
        return tree->header();
    if (auto *table = qobject_cast<QTableView *>(widget))
        return table->horizontalHeader();
    return nullptr;
}

QMenu *menuOfButton(const QToolBar *bar, QAction *action)
{
    if (action->menu())
        return action->menu();
    const auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
    return button && button->defaultAction() == action ? button->menu() : nullptr;
}

/// Presents a window as a form. Every action is presented once: as a menu where it stands in one, else where its button
/// is; the tooltip always with the button.
class WindowForm {
public:
    explicit WindowForm(QWidget &window)
    {
        addWidgets(&window);
        findMenuActions();
        for (QAction *action : m_menuActions)
            m_controls.push_back(menuNode(action));
        for (QWidget *widget : m_widgets)
            addControl(widget);
    }

    const std::vector<Node> &controls() const { return m_controls; }
    const std::vector<QWidget *> &widgets() const { return m_widgets; }

private:
    void addWidgets(const QWidget *parent)
    {
        for (QWidget *child : parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            const Qt::WindowType type = child->windowType();
            if (type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet)
                continue; // a form of its own
            m_widgets.push_back(child);
            addWidgets(child);
        }
    }

    void findMenuActions()
    {
        for (const QWidget *widget : m_widgets) {
            if (const auto *bar = qobject_cast<const QToolBar *>(widget)) {
                for (QAction *action : bar->actions())
                    m_buttonMenus.insert(menuOfButton(bar, action));
            }
        }
        m_buttonMenus.erase(nullptr);
        for (const QWidget *widget : m_widgets) {
            if (const auto *bar = qobject_cast<const QToolBar *>(widget))
                addToolActions(bar);
            else if (const auto *push = qobject_cast<const QPushButton *>(widget))
                addEntries(push->menu());
            else if (const auto *tool = qobject_cast<const QToolButton *>(widget))
                addEntries(tool->menu());
            else if (const auto *menu = qobject_cast<const QMenu *>(widget))
                addEntries(menu);
            else
                addActions(widget->actions());
        }
    }

    /// A button with a caption of its own leaves the action's text to the menus.
    void addToolActions(const QToolBar *bar)
    {
        for (QAction *action : bar->actions()) {
            if (!textProperty(action, ToolTag).isEmpty())
                addActions({action});
            addEntries(menuOfButton(bar, action));
        }
    }

    /// The entries of a tool button's own menu belong to the button, their submenus do not.
    void addEntries(const QMenu *menu)
    {
        if (!menu || !m_seenMenus.insert(menu).second)
            return;
        if (!m_buttonMenus.contains(menu)) {
            addActions(menu->actions());
            return;
        }
        for (const QAction *entry : menu->actions())
            addEntries(entry->menu());
    }

    void addActions(const QList<QAction *> &actions)
    {
        for (QAction *action : actions) {
            if (m_seenActions.insert(action).second)
                m_menuActions.push_back(action);
            addEntries(action->menu());
        }
    }

    static Node menuNode(QAction *action)
    {
        Node node = nodeOf(u"Menu"_s, action);
        if (action->isSeparator())
            node.part.caption = u"-"_s;
        return node;
    }

    void addControl(QWidget *widget)
    {
        if (qobject_cast<QMenu *>(widget) || isToolBarButton(widget) || isPanel(widget))
            return;
        const QString className = QString::fromLatin1(widget->metaObject()->className());
        QObject *carrier = carrierOf(widget);
        Node node = nodeOf(className, carrier);
        if (qobject_cast<QGroupBox *>(widget)) {
            node.part.typeName = u"Frame"_s;
        } else if (qobject_cast<QLabel *>(widget)) {
            node.part.typeName = u"Label"_s;
        } else if (auto *tabs = qobject_cast<QTabBar *>(widget)) {
            node.part.typeName = u"TabStrip"_s;
            for (int i = 0; i < tabs->count(); ++i)
                node.items.push_back(tabNode(tabs, i));
        } else if (auto *toolBar = qobject_cast<QToolBar *>(widget)) {
            node.part.typeName = u"Toolbar"_s;
            for (QAction *action : toolBar->actions())
                addToolButton(node, toolBar, action);
        } else if (auto *statusBar = qobject_cast<QStatusBar *>(widget)) {
            node.part.typeName = u"StatusBar"_s;
            for (QWidget *child : statusBar->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
                if (isPanel(child))
                    node.items.push_back(nodeOf({}, child));
            }
        } else if (QHeaderView *header = headingsOf(widget)) {
            node.part.typeName = u"ListView"_s;
            addHeadings(node, header);
        } else if (auto *button = qobject_cast<QToolButton *>(widget)) {
            node.showTooltip = [=](const QString &shown) {
                showButtonTooltip(carrier, button, shown);
            };
        }
        // The types with items know no caption of the whole; a title or accessible name of ours is a control beside it.
        static const QStringList typesWithItems{"TabStrip", "Toolbar", "StatusBar", "ListView"};
        if (!node.part.tag.isEmpty() && typesWithItems.contains(node.part.typeName))
            m_controls.push_back(nodeOf(className, carrier));
        m_controls.push_back(std::move(node));
    }

    bool isToolBarButton(const QWidget *widget) const
    {
        const auto *bar = qobject_cast<const QToolBar *>(widget->parentWidget());
        const auto *button = qobject_cast<const QToolButton *>(widget);
        return bar && button && button->defaultAction() && bar->widgetForAction(button->defaultAction()) == button;
    }

    static bool isPanel(const QWidget *widget)
    {
        return qobject_cast<const QStatusBar *>(widget->parentWidget()) &&
               !textProperty(widget, TooltipTag).isEmpty() && textProperty(widget, Tag).isEmpty();
    }

    static void showButtonTooltip(QObject *carrier, QToolButton *button, const QString &shown)
    {
        carrier->setProperty("toolTip", shown);
        if (shown.isEmpty()) // an action without a tooltip gives its text instead
            TooltipSilencer::silence(button);
    }

    void addToolButton(Node &toolBar, const QToolBar *bar, QAction *action)
    {
        auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action));
        if (!button || button->defaultAction() != action)
            return; // a separator or a control of its own
        Node node = nodeOf({}, action);
        node.showTooltip = [=](const QString &shown) {
            showButtonTooltip(action, button, shown);
        };
        const QString toolTag = textProperty(action, ToolTag);
        if (!toolTag.isEmpty()) {
            node.part.tag = toolTag;
            node.part.caption = designCaption(toolTag);
            node.showCaption = [=](const QString &shown) {
                action->setIconText(shown);
            };
        } else if (m_seenActions.contains(action)) {
            node.part.tag.clear();
        }
        if (const QMenu *menu = menuOfButton(bar, action)) {
            for (QAction *entry : menu->actions()) {
                if (!m_seenActions.contains(entry))
                    node.items.push_back(nodeOf({}, entry));
            }
        }
        toolBar.items.push_back(std::move(node));
    }

    static void addHeadings(Node &list, QHeaderView *header)
    {
        const QVariantMap headings = header->property(Headings).toMap();
        for (auto at = headings.begin(); at != headings.end(); ++at) {
            const QString tag = at.value().toString();
            const int column = at.key().toInt();
            list.items.push_back(
                {.part = {.tag = tag, .caption = designCaption(tag)}, .showCaption = [=](const QString &shown) {
                     showHeading(header, column, shown);
                 }});
        }
    }

    std::vector<QWidget *> m_widgets;
    std::vector<QAction *> m_menuActions; // in the window's order
    std::set<const QAction *> m_seenActions;
    std::set<const QMenu *> m_seenMenus;
    std::set<const QMenu *> m_buttonMenus;
    std::vector<Node> m_controls;
};

FormPart partOf(const Node &node)
{
    FormPart part = node.part;
    for (const Node &item : node.items)
        part.items.push_back(partOf(item));
    return part;
}

void show(const Node &node, const FormPart &translated)
{
    if (translated.caption != node.part.caption)
        node.showCaption(translated.caption);
    if (translated.tooltip != node.part.tooltip)
        node.showTooltip(translated.tooltip);
    for (std::size_t i = 0; i < node.items.size(); ++i)
        show(node.items[i], translated.items[i]);
}

/// What a button without a text does is told to those who cannot see its picture, short help or not.
void nameButton(QAbstractButton *button, Sprachmodul &texts)
{
    const QObject *carrier = carrierOf(button);
    bool isNumber = false;
    const qint16 id = textProperty(carrier, TooltipTag).toShort(&isNumber);
    if (button->text().isEmpty() && isNumber)
        button->setAccessibleName(texts.shownText(id).toString());
    // Those that Qt makes by itself.
    if (button->objectName() == u"qt_toolbar_ext_button")
        button->setAccessibleName(texts.text(Text::MoreTools));
    else if (button->actions().size() == 1 && button->actions().first()->objectName() == u"_q_qlineeditclearaction")
        button->setAccessibleName(texts.text(Text::ClearField));
}

} // namespace

void formuebersetzen(QWidget &window, Sprachmodul &texts, const host::Host &host)
{
    const WindowForm presented(window);
    const Node title = nodeOf({}, &window);
    Form form{.name = window.objectName(), .tag = title.part.tag, .title = title.part.caption};
    for (const Node &control : presented.controls())
        form.controls.push_back(partOf(control));

    formuebersetzen(form, texts, host);

    if (form.pointer == desktop::Pointer::Hourglass)
        window.setCursor(Qt::WaitCursor);
    if (form.title != title.part.caption)
        window.setWindowTitle(form.title);
    for (std::size_t i = 0; i < form.controls.size(); ++i)
        show(presented.controls()[i], form.controls[i]);
    for (QWidget *widget : presented.widgets()) {
        if (auto *button = qobject_cast<QAbstractButton *>(widget))
            nameButton(button, texts);
    }
}

} // namespace kalvenor::language
