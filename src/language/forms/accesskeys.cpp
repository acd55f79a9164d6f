// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/accesskeys.h"

#include "language/forms/designtext.h"
#include <functional>
#include <QAbstractButton>
#include <QLabel>
#include <QSet>
#include <QShortcut>
#include <QTabWidget>
#include <vector>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

using Letters = QSet<QChar>;

struct Captioned {
    QString text;
    std::function<void(const QString &)> show;
};

/// Where the text has its access key's letter; -1 without one.
qsizetype keyOf(const QString &text)
{
    for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size(); at = text.indexOf(u'&', at + 2)) {
        if (text[at + 1] != u'&')
            return at + 1;
    }
    return -1;
}

/// The place of the best free letter: one that begins a word, else any; -1 where all are taken.
qsizetype freeLetter(const QString &text, const Letters &taken)
{
    for (const bool atBegin : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || text[i - 1].isSpace();
            if (begins == atBegin && text[i].isLetter() && !taken.contains(text[i].toLower()))
                return i;
        }
    }
    return -1;
}

void giveKeys(std::vector<Captioned> &all, Letters &taken)
{
    std::vector<Captioned *> without;
    for (Captioned &each : all) {
        const qsizetype key = keyOf(each.text);
        if (key >= 0 && !taken.contains(each.text[key].toLower()))
            taken.insert(each.text[key].toLower());
        else
            without.push_back(&each);
    }
    for (Captioned *each : without) {
        QString plain = withoutAccessKey(each->text);
        if (const qsizetype place = freeLetter(plain, taken); place >= 0) {
            taken.insert(plain[place].toLower());
            plain.insert(place, u'&');
        }
        each->show(plain);
    }
}

bool goesWithout(const QWidget *widget)
{
    const QString tag = textProperty(widget, Tag);
    return tag == tagOf(Text::Ok) || tag == tagOf(Text::Cancel);
}

/// What shows on the widget itself, and the tabs whose pages come later.
void collect(const QWidget &parent, std::vector<Captioned> &captions, std::vector<QTabWidget *> &tabs)
{
    for (QWidget *child : parent.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (child->isWindow())
            continue;
        if (auto *pages = qobject_cast<QTabWidget *>(child)) {
            tabs.push_back(pages);
            for (int i = 0; i < pages->count(); ++i)
                captions.push_back({pages->tabText(i), [pages, i](const QString &text) {
                                        pages->setTabText(i, text);
                                    }});
            continue;
        }
        auto *button = qobject_cast<QAbstractButton *>(child);
        auto *label = qobject_cast<QLabel *>(child);
        if (button != nullptr && !textProperty(button, Tag).isEmpty() && !button->text().isEmpty() &&
            !goesWithout(button))
            captions.push_back({button->text(), [button](const QString &text) {
                                    button->setText(text);
                                }});
        else if (label != nullptr && label->buddy() != nullptr)
            captions.push_back({label->text(), [label](const QString &text) {
                                    label->setText(text);
                                }});
        else
            collect(*child, captions, tabs);
    }
}

void giveAccessKeys(const QWidget &parent, Letters taken)
{
    std::vector<Captioned> captions;
    std::vector<QTabWidget *> tabs;
    collect(parent, captions, tabs);
    giveKeys(captions, taken);
    for (const QTabWidget *pages : tabs) {
        for (int i = 0; i < pages->count(); ++i)
            giveAccessKeys(*pages->widget(i), taken);
    }
}

} // namespace

QString withoutAccessKey(const QString &text)
{
    QString plain = text;
    if (const qsizetype key = keyOf(text); key >= 0)
        plain.remove(key - 1, 1);
    return plain.replace(u"&&"_s, u"&"_s);
}

void giveAccessKeys(QWidget &dialog)
{
    giveAccessKeys(dialog, {});
}

void turnByCtrlTab(QTabWidget &tabs)
{
    const auto turn = [&tabs](const QKeySequence &keys, int step) {
        auto *shortcut = new QShortcut(keys, tabs.window());
        QObject::connect(shortcut, &QShortcut::activated, &tabs, [&tabs, step] {
            tabs.setCurrentIndex((tabs.currentIndex() + step + tabs.count()) % tabs.count());
        });
    };
    turn(Qt::CTRL | Qt::Key_Tab, 1);
    turn(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
}

} // namespace kalvenor::language
