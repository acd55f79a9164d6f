// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/form.h"

#include "platform/basic/number.h"

namespace kalvenor::language {

namespace {

bool isOwnAndLacking(qint16 id, const QVariant &text)
{
    return id >= FirstOwnText && (text.isNull() || text.toString() == QStringLiteral("????"));
}

QString withoutNumber(const QString &designed, qint16 id)
{
    const QString number = QString::number(id);
    if (!designed.startsWith(number))
        return designed;
    const bool blank = designed.mid(number.size()).startsWith(u' ');
    return designed.mid(number.size() + (blank ? 1 : 0));
}

qint16 leadingIdentifier(const QString &text)
{
    return toInteger16(leadingNumber(text));
}

class Translation {
public:
    Translation(const Form &form, Sprachmodul &texts, const host::Host &host)
        : m_texts(texts), m_tooltips(host.Kurzhilfe == 1 || form.name == QStringLiteral("Container")),
          m_buttonTooltips(host.Kurzhilfe == 1 || form.name == QStringLiteral("Conta5iner"))
    {
    }

    /// No test of the number: a text that is none fails, and what is shown stays.
    void captionOfTag(QString &caption, const QString &tag)
    {
        attempt([&] { assign(caption, textToInteger16(tag)); });
    }

    void control(FormPart &part)
    {
        const QString &type = part.typeName;
        if (type == QStringLiteral("Frame") || type == QStringLiteral("Label")) {
            captionOfTag(part.caption, part.tag);
            tooltip(part);
        } else if (type == QStringLiteral("Menu")) {
            captionOfNumber(part.caption, part.caption, [](qint16 n) { return n != 0; });
        } else if (type == QStringLiteral("TabStrip")) {
            for (FormPart &tab : part.items) {
                captionOfTag(tab.caption, tab.tag);
                itemTooltip(tab, m_tooltips);
            }
        } else if (type == QStringLiteral("Toolbar")) {
            for (FormPart &button : part.items) {
                captionOfTag(button.caption, button.tag);
                itemTooltip(button, m_buttonTooltips);
                for (FormPart &entry : button.items)
                    captionOfTag(entry.caption, entry.tag);
            }
        } else if (type == QStringLiteral("StatusBar")) {
            for (FormPart &panel : part.items)
                itemTooltip(panel, m_tooltips);
        } else if (type == QStringLiteral("ListView")) {
            for (FormPart &heading : part.items)
                captionOfTag(heading.caption, heading.tag);
            tooltip(part);
        } else if (type == QStringLiteral("Timer") || type == QStringLiteral("ImageList") ||
                   type == QStringLiteral("CommonDialog") || type == QStringLiteral("inetFile")) {
            return;
        } else {
            captionOfNumber(part.caption, part.tag, [](qint16 n) { return n > 0; });
            tooltip(part);
        }
    }

private:
    /// One statement; where it fails (an identifier that is no number or too large) the next one is carried out.
    template <typename Statement>
    static void attempt(Statement statement)
    {
        try {
            statement();
        } catch (const Error &) {
            // What the statement would have replaced stays as designed.
        }
    }

    /// A null cannot be assigned to a caption: it stays, unless the text is one of our own.
    void assign(QString &shown, qint16 id, const QString &designed)
    {
        const QVariant text = m_texts.sprachtext(id);
        if (isOwnAndLacking(id, text))
            shown = designed;
        else if (!text.isNull())
            shown = text.toString();
    }
    void assign(QString &caption, qint16 id) { assign(caption, id, withoutNumber(caption, id)); }

    template <typename Test>
    void captionOfNumber(QString &caption, const QString &carrier, Test test)
    {
        attempt([&] {
            const qint16 n = leadingIdentifier(carrier);
            if (test(n))
                assign(caption, n);
        });
    }

    void tooltip(FormPart &part)
    {
        if (!m_tooltips) {
            part.tooltip.clear();
            return;
        }
        attempt([&] {
            const qint16 n = leadingIdentifier(part.tooltip);
            if (n > 0)
                assign(part.tooltip, n, part.tooltipText);
        });
    }

    void itemTooltip(FormPart &item, bool enabled)
    {
        if (enabled)
            attempt([&] { assign(item.tooltip, textToInteger16(item.tooltip), item.tooltipText); });
        else
            item.tooltip.clear();
    }

    Sprachmodul &m_texts;
    bool m_tooltips;
    bool m_buttonTooltips; // the form excepted from the switch has another name here; that is meant so
};

} // namespace

void formuebersetzen(Form &form, Sprachmodul &texts, const host::Host &host)
{
    form.pointer = Pointer::Hourglass;
    Translation translation(form, texts, host);
    translation.captionOfTag(form.title, form.tag);
    for (FormPart &control : form.controls)
        translation.control(control);
}

QLocale anzeigesprache(const host::Host &host)
{
    return host.Sprache.compare(u"Deutsch", Qt::CaseInsensitive) == 0 ? QLocale::German : QLocale::English;
}

QString shownText(Sprachmodul &texts, qint16 id, const QString &germanText)
{
    const QVariant text = texts.sprachtext(id);
    return isOwnAndLacking(id, text) ? germanText : text.toString();
}

} // namespace kalvenor::language
