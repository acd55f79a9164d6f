// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/forms/form.h"

#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

qint16 leadingIdentifier(const QString &text)
{
    return basic::toInteger16(basic::leadingNumber(text));
}

class Translation {
public:
    Translation(const Form &form, Sprachmodul &texts, const host::Host &host)
        : m_texts(texts), m_tooltips(host.Kurzhilfe == 1 || form.name == u"Container"_s),
          m_buttonTooltips(host.Kurzhilfe == 1 || form.name == u"Conta5iner"_s)
    {
    }

    /// No test of the number: a text that is none fails, and what is shown stays.
    void captionOfTag(QString &caption, const QString &tag)
    {
        attempt([&] { assign(caption, basic::textToInteger16(tag)); });
    }

    void control(FormPart &part)
    {
        const QString &type = part.typeName;
        if (type == u"Frame"_s || type == u"Label"_s) {
            captionOfTag(part.caption, part.tag);
            tooltip(part);
        } else if (type == u"Menu"_s) {
            captionOfNumber(part.caption, part.caption, [](qint16 n) { return n != 0; });
        } else if (type == u"TabStrip"_s) {
            for (FormPart &tab : part.items) {
                captionOfTag(tab.caption, tab.tag);
                itemTooltip(tab, m_tooltips);
            }
        } else if (type == u"Toolbar"_s) {
            for (FormPart &button : part.items) {
                captionOfTag(button.caption, button.tag);
                itemTooltip(button, m_buttonTooltips);
                for (FormPart &entry : button.items)
                    captionOfTag(entry.caption, entry.tag);
            }
        } else if (type == u"StatusBar"_s) {
            for (FormPart &panel : part.items)
                itemTooltip(panel, m_tooltips);
        } else if (type == u"ListView"_s) {
            for (FormPart &heading : part.items)
                captionOfTag(heading.caption, heading.tag);
            tooltip(part);
        } else if (type == u"Timer"_s || type == u"ImageList"_s || type == u"CommonDialog"_s || type == u"inetFile"_s) {
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
        } catch (const basic::Error &) {
            // What the statement would have replaced stays as designed.
        }
    }

    /// A null cannot be assigned to a caption: it stays.
    void assign(QString &shown, qint16 id)
    {
        const QVariant text = m_texts.shownText(id);
        if (!text.isNull())
            shown = text.toString();
    }

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
                assign(part.tooltip, n);
        });
    }

    void itemTooltip(FormPart &item, bool enabled)
    {
        if (enabled)
            attempt([&] { assign(item.tooltip, basic::textToInteger16(item.tooltip)); });
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
    form.pointer = desktop::Pointer::Hourglass;
    Translation translation(form, texts, host);
    translation.captionOfTag(form.title, form.tag);
    for (FormPart &control : form.controls)
        translation.control(control);
}

} // namespace kalvenor::language
