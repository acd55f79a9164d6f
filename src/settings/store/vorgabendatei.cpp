// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/store/vorgabendatei.h"

#include "platform/basic/error.h"
#include "platform/basic/number.h"
#include <cmath>
#include <concepts>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

namespace {

constexpr double WidestColumn = 31680; // 22 inches
constexpr double LargestFontfaktor = 20;
constexpr int SmallestBildprozent = 50, LargestBildprozent = 600;
const QString Grafik = u"Grafik"_s;
const QString Rand = u"Druckrand"_s;
const QString Fontfaktor = u"Fontfaktor"_s;
const QString Bildgroesse = u"Bildgroesse"_s;
const QString Spalten = u"Spalten"_s;
const std::array<QString, 3> SpaltenKeys = {u"1"_s, u"2"_s, u"4"_s};

struct FontKey {
    const char *name;
    QString FontTexts::*text;
};
constexpr std::array<FontKey, 8> FontKeys = {{{"Fontname", &FontTexts::Fontname},
                                              {"Fontsize", &FontTexts::Fontsize},
                                              {"Fontbold", &FontTexts::Fontbold},
                                              {"Fontunderline", &FontTexts::Fontunderline},
                                              {"Fontstrikethru", &FontTexts::Fontstrikethru},
                                              {"Fontitalic", &FontTexts::Fontitalic},
                                              {"Fontcolor", &FontTexts::Fontcolor},
                                              {"Backcolor", &FontTexts::Backcolor}}};

QString sectionOf(Element element)
{
    switch (element) {
    case Titel:
        return u"Titel"_s;
    case TitelKriterien:
        return u"TitelKriterien"_s;
    case Kriterien:
        return u"Kriterien"_s;
    case TitelAltersliste:
    case NeueSeite:
        return u"TitelAltersliste"_s;
    case Altersliste:
        return u"Altersliste"_s;
    case Header:
        return u"Header"_s;
    case Footer:
        return u"Footer"_s;
    }
    return {};
}

/// The leading number of a text as one of the integer types, `fallback` where it does not fit.
template <typename Integer>
Integer wholeNumber(const QString &text, Integer fallback, Integer (*convert)(double))
{
    try {
        return convert(basic::leadingNumber(text));
    } catch (const basic::Error &) {
        return fallback;
    }
}

/// Reads each value with what it is given as its default.
class Reader {
public:
    explicit Reader(const host::Host &host) : m_host(host), m_file(host.ownSettingsFile()) {}

    void value(const QString &section, const QString &key, QString &text) const { text = read(section, key, text); }
    void value(const QString &section, const QString &key, qint16 &number) const
    {
        number = wholeNumber<qint16>(read(section, key, QString::number(number)), number, basic::toInteger16);
    }
    void value(const QString &section, const QString &key, double &number) const
    {
        const double given = basic::leadingNumber(read(section, key, basic::trimmedNumberText(number)));
        number = std::isfinite(given) ? given : number;
    }
    void value(const QString &section, const QString &key, print::Twips &length) const
    {
        length = wholeNumber<qint32>(read(section, key, QString::number(length)), length, basic::toLong32);
    }
    void value(const QString &section, const QString &key, bool &isOn) const
    {
        isOn = wholeNumber<qint32>(read(section, key, u"0"_s), 0, basic::toLong32) == 1;
    }

private:
    QString read(const QString &section, const QString &key, const QString &fallback) const
    {
        return m_host.inilesen(m_file, section, key, fallback);
    }

    const host::Host &m_host;
    basic::WindowsPath m_file;
};

class Writer {
public:
    explicit Writer(const host::Host &host) : m_host(host), m_file(host.ownSettingsFile()) {}

    void value(const QString &section, const QString &key, const QString &text)
    {
        const QString other = text == u"?" ? u"!"_s : u"?"_s;
        if (m_host.inilesen(m_file, section, key, other) != text)
            m_changed.push_back({section, key, text});
    }
    void value(const QString &section, const QString &key, std::integral auto number)
    {
        value(section, key, QString::number(static_cast<int>(number)));
    }
    void value(const QString &section, const QString &key, double number)
    {
        value(section, key, basic::trimmedNumberText(number));
    }
    bool write() const { return m_host.inischreiben(m_file, m_changed); }

private:
    const host::Host &m_host;
    basic::WindowsPath m_file;
    std::vector<host::Host::Setting> m_changed;
};

/// Every setting once, in the order of the file, for loading and saving alike.
template <typename Access, typename Vorgaben, typename Page>
void visit(Access &access, Vorgaben &vorgaben, Page &page)
{
    const auto value = [&access](const QString &section, const char *key, auto &setting) {
        access.value(section, QLatin1String(key), setting);
    };
    for (const Element element : FontElements) {
        const QString section = sectionOf(element);
        for (const FontKey &key : FontKeys)
            value(section, key.name, vorgaben.font(element).*key.text);
        switch (element) {
        case Titel:
            value(Grafik, "Bildprint", vorgaben.Bildprint);
            break;
        case TitelKriterien:
        case Header:
        case Footer:
            value(section, "Print", vorgaben.print(element));
            break;
        case TitelAltersliste:
            value(section, "Print", vorgaben.print(element));
            value(section, "Neueseite", vorgaben.print(NeueSeite));
            break;
        case Altersliste:
            value(section, "Abstand", vorgaben.Abstand);
            break;
        default:
            break;
        }
    }
    value(Rand, "Links", page.left);
    value(Rand, "Oben", page.top);
    value(Rand, "Rechts", page.right);
    value(Rand, "Unten", page.bottom);
    value(u"Format"_s, "Ausrichtung", page.landscape);
}

void seed(const host::Host &host)
{
    const basic::WindowsPath file = host.ownSettingsFile();
    if (basic::leadingNumber(host.inilesen(file, Spalten, SpaltenKeys[0], u"1"_s)) != 1)
        return;
    const ReportMeasures defaults;
    std::vector<host::Host::Setting> settings;
    for (std::size_t i = 0; i < SpaltenKeys.size(); ++i)
        settings.push_back({Spalten, SpaltenKeys[i], QString::number(defaults.spaltenbreiten[i])});
    settings.push_back({Grafik, Fontfaktor, basic::trimmedNumberText(defaults.fontfaktor)});
    host.inischreiben(file, settings); // not told: the next load tries again
}

} // namespace

void initladen(const host::Host &host, Druckvorgaben &vorgaben, print::PageSetup &page)
{
    Reader reader(host);
    vorgaben = defaultVorgaben();
    visit(reader, vorgaben, page);
    seed(host);
}

bool initspeichern(const host::Host &host, const Druckvorgaben &vorgaben, const print::PageSetup &page)
{
    Writer writer(host);
    visit(writer, vorgaben, page);
    return writer.write();
}

ReportMeasures ReportMeasures::read(const host::Host &host)
{
    const auto number = [&host](const QString &section, const QString &key, double fallback, auto fits) {
        const double value = basic::leadingNumber(
            host.inilesen(host.ownSettingsFile(), section, key, basic::trimmedNumberText(fallback)));
        return fits(value) ? value : fallback;
    };
    ReportMeasures measures;
    for (std::size_t i = 0; i < SpaltenKeys.size(); ++i) {
        measures.spaltenbreiten[i] =
            basic::toLong32(number(Spalten, SpaltenKeys[i], measures.spaltenbreiten[i],
                                   [](double width) { return width >= 0 && width <= WidestColumn; }));
    }
    measures.fontfaktor = number(Grafik, Fontfaktor, measures.fontfaktor,
                                 [](double factor) { return factor > 0 && factor <= LargestFontfaktor; });
    measures.bildprozent = basic::toLong32(number(Grafik, Bildgroesse, measures.bildprozent, [](double percent) {
        return percent >= SmallestBildprozent && percent <= LargestBildprozent;
    }));
    return measures;
}

bool ReportMeasures::write(const host::Host &host) const
{
    std::vector<host::Host::Setting> changed;
    const auto put = [&changed](const QString &section, const QString &key, double value, double before) {
        if (value != before)
            changed.push_back({section, key, basic::trimmedNumberText(value)});
    };
    const ReportMeasures before = read(host);
    for (std::size_t i = 0; i < SpaltenKeys.size(); ++i)
        put(Spalten, SpaltenKeys[i], spaltenbreiten[i], before.spaltenbreiten[i]);
    put(Grafik, Fontfaktor, fontfaktor, before.fontfaktor);
    put(Grafik, Bildgroesse, bildprozent, before.bildprozent);
    return host.inischreiben(host.ownSettingsFile(), changed);
}

} // namespace kalvenor::settings
