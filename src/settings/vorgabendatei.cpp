// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/vorgabendatei.h"

#include "platform/basic/error.h"
#include "platform/basic/number.h"
#include <cmath>

namespace kalvenor::settings {

namespace {

constexpr double WidestColumn = 31680; // 22 inches
constexpr double LargestFontfaktor = 20;
constexpr int SmallestBildprozent = 50, LargestBildprozent = 600;
const QString Grafik = QStringLiteral("Grafik");
const QString Fontfaktor = QStringLiteral("Fontfaktor");
const QString Bildgroesse = QStringLiteral("Bildgroesse");
const QString Spalten = QStringLiteral("Spalten");
const std::array<QString, 3> spaltenKeys = {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("4")};

struct FontKey {
    const char *name;
    QString FontTexts::*text;
};
constexpr std::array<FontKey, 8> fontKeys = {{{"Fontname", &FontTexts::Fontname},
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
        return QStringLiteral("Titel");
    case TitelKriterien:
        return QStringLiteral("TitelKriterien");
    case Kriterien:
        return QStringLiteral("Kriterien");
    case TitelAltersliste:
    case NeueSeite:
        return QStringLiteral("TitelAltersliste");
    case Altersliste:
        return QStringLiteral("Altersliste");
    case Header:
        return QStringLiteral("Header");
    case Footer:
        return QStringLiteral("Footer");
    }
    return {};
}

/// The leading number of a text as one of the integer types, `fallback` where it does not fit.
template <typename Integer>
Integer wholeNumber(const QString &text, Integer fallback, Integer (*convert)(double))
{
    try {
        return convert(leadingNumber(text));
    } catch (const Error &) {
        return fallback;
    }
}

double finiteNumber(const QString &text, double fallback)
{
    const double value = leadingNumber(text);
    return std::isfinite(value) ? value : fallback;
}

/// Reads each value with what it is given as its default.
class Reader {
public:
    explicit Reader(const host::Host &host) : m_host(host), m_file(host.ownSettingsFile()) {}

    void text(const QString &section, const QString &key, QString &value) const { value = read(section, key, value); }
    void integer(const QString &section, const QString &key, qint16 &value) const
    {
        value = wholeNumber<qint16>(read(section, key, QString::number(value)), value, toInteger16);
    }
    void number(const QString &section, const QString &key, double &value) const
    {
        value = finiteNumber(read(section, key, trimmedNumberText(value)), value);
    }
    void twips(const QString &section, const QString &key, Twips &value) const
    {
        value = wholeNumber<qint32>(read(section, key, QString::number(value)), value, toLong32);
    }
    void orientation(const QString &section, const QString &key, bool &landscape) const
    {
        landscape = wholeNumber<qint32>(read(section, key, QStringLiteral("0")), 0, toLong32) == 1;
    }

private:
    QString read(const QString &section, const QString &key, const QString &fallback) const
    {
        return m_host.inilesen(m_file, section, key, fallback);
    }

    const host::Host &m_host;
    QString m_file;
};

class Writer {
public:
    explicit Writer(const host::Host &host) : m_host(host), m_file(host.ownSettingsFile()) {}

    void text(const QString &section, const QString &key, const QString &value)
    {
        const QString other = value == u"?" ? QStringLiteral("!") : QStringLiteral("?");
        if (m_host.inilesen(m_file, section, key, other) != value)
            m_changed.push_back({section, key, value});
    }
    void integer(const QString &section, const QString &key, qint16 value)
    {
        text(section, key, QString::number(value));
    }
    void number(const QString &section, const QString &key, double value)
    {
        text(section, key, trimmedNumberText(value));
    }
    void twips(const QString &section, const QString &key, Twips value) { text(section, key, QString::number(value)); }
    void orientation(const QString &section, const QString &key, bool landscape)
    {
        text(section, key, QString::number(landscape ? 1 : 0));
    }
    bool write() const { return m_host.inischreiben(m_file, m_changed); }

private:
    const host::Host &m_host;
    QString m_file;
    std::vector<host::Host::Setting> m_changed;
};

/// Every setting once, in the order of the file, for loading and saving alike.
template <typename Access, typename Vorgaben, typename Page>
void visit(Access &access, Vorgaben &vorgaben, Page &page)
{
    const auto integer = [&access](const QString &section, const char *key, auto &value) {
        access.integer(section, QLatin1String(key), value);
    };
    const auto twips = [&access](const char *key, auto &value) {
        access.twips(QStringLiteral("Druckrand"), QLatin1String(key), value);
    };
    for (const Element element : fontElements) {
        const QString section = sectionOf(element);
        for (const FontKey &key : fontKeys)
            access.text(section, QLatin1String(key.name), vorgaben.font(element).*key.text);
        switch (element) {
        case Titel:
            integer(Grafik, "Bildprint", vorgaben.Bildprint);
            break;
        case TitelKriterien:
        case Header:
        case Footer:
            integer(section, "Print", vorgaben.print(element));
            break;
        case TitelAltersliste:
            integer(section, "Print", vorgaben.print(element));
            integer(section, "Neueseite", vorgaben.print(NeueSeite));
            break;
        case Altersliste:
            access.number(section, QStringLiteral("Abstand"), vorgaben.Abstand);
            break;
        default:
            break;
        }
    }
    twips("Links", page.left);
    twips("Oben", page.top);
    twips("Rechts", page.right);
    twips("Unten", page.bottom);
    access.orientation(QStringLiteral("Format"), QStringLiteral("Ausrichtung"), page.landscape);
}

void seed(const host::Host &host)
{
    const QString file = host.ownSettingsFile();
    if (leadingNumber(host.inilesen(file, Spalten, spaltenKeys[0], QStringLiteral("1"))) != 1)
        return;
    const ReportMeasures defaults;
    std::vector<host::Host::Setting> settings;
    for (std::size_t i = 0; i < spaltenKeys.size(); ++i)
        settings.push_back({Spalten, spaltenKeys[i], QString::number(defaults.spaltenbreiten[i])});
    settings.push_back({Grafik, Fontfaktor, trimmedNumberText(defaults.fontfaktor)});
    host.inischreiben(file, settings); // not told: the next load tries again
}

} // namespace

void initladen(const host::Host &host, Druckvorgaben &vorgaben, PageSetup &page)
{
    Reader reader(host);
    vorgaben = defaultVorgaben();
    visit(reader, vorgaben, page);
    seed(host);
}

bool initspeichern(const host::Host &host, const Druckvorgaben &vorgaben, const PageSetup &page)
{
    Writer writer(host);
    visit(writer, vorgaben, page);
    return writer.write();
}

ReportMeasures ReportMeasures::read(const host::Host &host)
{
    const auto number = [&host](const QString &section, const QString &key, double fallback, auto fits) {
        const double value =
            leadingNumber(host.inilesen(host.ownSettingsFile(), section, key, trimmedNumberText(fallback)));
        return fits(value) ? value : fallback;
    };
    ReportMeasures measures;
    for (std::size_t i = 0; i < spaltenKeys.size(); ++i) {
        measures.spaltenbreiten[i] = toLong32(number(Spalten, spaltenKeys[i], measures.spaltenbreiten[i],
                                                     [](double width) { return width >= 0 && width <= WidestColumn; }));
    }
    measures.fontfaktor = number(Grafik, Fontfaktor, measures.fontfaktor,
                                 [](double factor) { return factor > 0 && factor <= LargestFontfaktor; });
    measures.bildprozent = toLong32(number(Grafik, Bildgroesse, measures.bildprozent, [](double percent) {
        return percent >= SmallestBildprozent && percent <= LargestBildprozent;
    }));
    return measures;
}

bool ReportMeasures::write(const host::Host &host) const
{
    std::vector<host::Host::Setting> changed;
    const auto put = [&changed](const QString &section, const QString &key, double value, double before) {
        if (value != before)
            changed.push_back({section, key, trimmedNumberText(value)});
    };
    const ReportMeasures before = read(host);
    for (std::size_t i = 0; i < spaltenKeys.size(); ++i)
        put(Spalten, spaltenKeys[i], spaltenbreiten[i], before.spaltenbreiten[i]);
    put(Grafik, Fontfaktor, fontfaktor, before.fontfaktor);
    put(Grafik, Bildgroesse, bildprozent, before.bildprozent);
    return host.inischreiben(host.ownSettingsFile(), changed);
}

} // namespace kalvenor::settings
