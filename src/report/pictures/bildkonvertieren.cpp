// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/pictures/bildkonvertieren.h"

#include "language/texts/sprache.h"
#include "platform/basic/error.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include "platform/desktop/sharedlibrary.h"
#include "platform/storage/replacement.h"
#include <algorithm>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

using language::Text;

namespace {

const QString ProgramId = u"Pictarex.Compendium"_s;
constexpr double DefaultQuality = 70;
constexpr qint16 DefaultLeastHeight = 2000;

[[noreturn]] void cannotWrite(const QString &file, const basic::Argument &reason)
{
    throw basic::Error(basic::Fault::NotWritten, {.file = file}, {reason});
}

/// A BMP has no transparency: the paper shows through it.
QImage onPaper(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    paper.setDotsPerMeterX(image.dotsPerMeterX());
    paper.setDotsPerMeterY(image.dotsPerMeterY());
    QPainter painter(&paper);
    painter.drawImage(QRectF(paper.rect()), image, QRectF(image.rect()));
    return paper;
}

void writeBmp(const QImage &image, const basic::NativePath &nativeFile)
{
    QBuffer bytes;
    QImageWriter writer(&bytes, "bmp");
    if (!writer.write(onPaper(image)))
        cannotWrite(nativeFile, writer.errorString());
    basic::Argument reason;
    if (!storage::replaceFileSafely(nativeFile, bytes.data(), &reason, storage::Origin::Beside))
        cannotWrite(nativeFile, reason);
}

/// Gives the file exactly this name, where its old name may differ in case alone. False where that fails.
bool renameTo(const QString &nativeFile, const QString &name)
{
    const QString renamed = QFileInfo(nativeFile).dir().filePath(name);
    if (renamed == nativeFile)
        return true;
    if (QFile::exists(renamed) && QFileInfo(renamed) != QFileInfo(nativeFile) && !QFile::remove(renamed))
        return false;
    return QFile::rename(nativeFile, renamed);
}

QString nameOf(const basic::WindowsPath &file)
{
    return file.text().mid(file.text().lastIndexOf(u'\\') + 1);
}

} // namespace

void Bildumwandlung::bildkonvertieren(const PictureControl &control, basic::WindowsPath &file, QString &type)
{
    if (file.isEmpty())
        return;
    if (nameOf(file).lastIndexOf(u'.') < 0)
        throw basic::Error(basic::Fault::PictureWithoutEnding, {.file = file.text()});
    if (control.Image.isNull())
        throw basic::Error(basic::Fault::NoPicture, {.file = file.text()});
    type = basic::rightPart(file.text(), 3).toUpper();
    if (type == u"BMP")
        type = u"JPG"_s;

    const basic::WindowsPath base(basic::leftPart(file.text(), file.text().lastIndexOf(u'.') + 1));
    const basic::WindowsPath bmp = base + u"bmp"_s;
    for (const basic::WindowsPath &written : {bmp, base + type, base + u"BMP"_s}) // components know nothing of links
        storage::checkTarget(m_host.native(written), storage::Origin::Beside);
    if (!m_host.dir(bmp).isEmpty())
        QFile::remove(m_host.native(bmp)); // where that fails, writing says so
    const basic::NativePath nativeBmp = m_host.native(bmp);
    auto removeBmp = qScopeGuard([&nativeBmp] { QFile::remove(nativeBmp); });
    writeBmp(control.Image, nativeBmp);
    file = base + type;

    if (!findComponent()) {
        m_host.desktop().messageBox(m_texts.text(Text::NoPictureConversion), desktop::MessageCritical,
                                    m_texts.text(Text::Error));
        file = base + u"BMP"_s;
        if (!renameTo(nativeBmp, nameOf(file)))
            throw basic::Error(basic::Fault::NotRenamed, {.file = nativeBmp});
        removeBmp.dismiss();
        return;
    }

    if (type == u"JPG") {
        const QString output = m_host.native(file);
        const QString fault = m_component->convertEx(nativeBmp, output, quality(), 0, 0, 0);
        if (!fault.isEmpty())
            m_host.desktop().messageBox(m_texts.text(Text::ErrorPrefix) + fault, 0, m_texts.text(Text::Error));
        else
            renameTo(output, nameOf(file)); // an old picture's name could differ in case, and links would miss it
    }
}

bool Bildumwandlung::findComponent()
{
    if (m_component == nullptr)
        m_component = desktop::createImageComponent(ProgramId);
    if (m_component == nullptr) {
        dllregistrieren(m_host, m_host.Hostverzeichnis + u"\\Pictarex.dll"_s, true);
        m_component = desktop::createImageComponent(ProgramId);
    }
    return m_component != nullptr;
}

int Bildumwandlung::quality() const
{
    const QString text = m_host.inilesen(m_host.hostSettingsFile(), u"Grafik"_s, u"JPG-Faktor"_s,
                                         basic::trimmedNumberText(DefaultQuality));
    return basic::toLong32(std::clamp(basic::leadingNumber(text), 0.0, 100.0));
}

qint16 dllregistrieren(const host::Host &host, const basic::WindowsPath &library, bool registrieren)
{
    desktop::SharedLibrary loaded(host.native(library));
    if (!loaded.isLoaded())
        return 0;
    const auto entryPoint = loaded.entryPoint(registrieren ? "DllRegisterServer" : "DllUnregisterServer");
    return entryPoint != nullptr && desktop::runOnThread(entryPoint) >= 0 ? -1 : 0;
}

void bildgroesse(const host::Host &host, PictureControl &chart, PictureControl &print, qint16 width, qint16 &height)
{
    if (width <= 0 || chart.Image.isNull())
        throw basic::Error(basic::Fault::NoPictureRoom);
    const double least = basic::leadingNumber(
        host.inilesen(host.hostSettingsFile(), u"Ansicht"_s, u"Bildminhoehe"_s, QString::number(DefaultLeastHeight)));
    if (height < least || height <= 0) {
        const bool fits = least >= 1 && least <= INT16_MAX; // else the setting is no height
        height = fits ? basic::toInteger16(least) : std::max(height, DefaultLeastHeight);
    }

    // How many times the picture exceeds the space, in the direction where it does so more.
    const double factor =
        std::max(chart.Image.width() / static_cast<double>(width), chart.Image.height() / static_cast<double>(height));
    chart.AutoRedraw = false;
    print.Image = chart.Image;
    print.Width = chart.Image.width() / factor;
    print.Height = chart.Image.height() / factor;
}

} // namespace kalvenor::report
