// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/imagecomponent.h"

#include "platform/storage/replacement.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

using namespace Qt::StringLiterals;

namespace kalvenor::desktop {

namespace {

struct Registry {
    std::mutex mutex;
    std::map<QString, ImageComponentFactory> factories{{u"Pictarex.Compendium"_s, createJpegComponent}};
};

Registry &registry()
{
    static Registry instance;
    return instance;
}

QImage scaled(const QImage &image, int width, int height)
{
    if (width > 0 && height > 0)
        return image.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (width > 0)
        return image.scaledToWidth(width, Qt::SmoothTransformation);
    return height > 0 ? image.scaledToHeight(height, Qt::SmoothTransformation) : image;
}

class JpegComponent : public ImageComponent {
public:
    QString convertEx(const QString &bmpFile, const QString &outputFile, int quality, int width, int height,
                      int resolution) override
    {
        QImageReader reader(bmpFile);
        QImage image = reader.read();
        if (image.isNull())
            return bmpFile + u": "_s + reader.errorString();
        image = scaled(image, width, height);
        if (resolution > 0) {
            const int dotsPerMeter = qRound(resolution / 0.0254);
            image.setDotsPerMeterX(dotsPerMeter);
            image.setDotsPerMeterY(dotsPerMeter);
        }
        QBuffer bytes;
        QImageWriter writer(&bytes, "jpeg");
        writer.setQuality(std::clamp(quality, 0, 100));
        if (!writer.write(image))
            return outputFile + u": "_s + writer.errorString();
        basic::Argument reason;
        if (!storage::replaceFileSafely(basic::NativePath(outputFile), bytes.data(), &reason, storage::Origin::Beside))
            return outputFile + u": "_s + (reason.text.isEmpty() ? u"cannot be written"_s : reason.text);
        return {};
    }
};

} // namespace

void registerImageComponent(QStringView programId, ImageComponentFactory factory)
{
    Registry &components = registry();
    const std::lock_guard lock(components.mutex);
    components.factories[programId.toString()] = factory; // a copy: the text may be part of the library
}

bool unregisterImageComponent(const QString &programId)
{
    Registry &components = registry();
    const std::lock_guard lock(components.mutex);
    return components.factories.erase(programId) != 0;
}

std::unique_ptr<ImageComponent> createImageComponent(const QString &programId)
{
    Registry &components = registry();
    ImageComponentFactory factory = nullptr;
    {
        const std::lock_guard lock(components.mutex);
        const auto at = components.factories.find(programId);
        if (at == components.factories.end())
            return nullptr;
        factory = at->second;
    }
    return factory();
}

std::unique_ptr<ImageComponent> createJpegComponent()
{
    return std::make_unique<JpegComponent>();
}

} // namespace kalvenor::desktop
