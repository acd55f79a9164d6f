// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <QString>

// Components that convert pictures, found by their program identifier.
namespace kalvenor::desktop {

class ImageComponent {
public:
    virtual ~ImageComponent() = default;

    /// Converts the BMP file to the output file (native paths), which is replaced. Quality from 0 to 100; width and
    /// height in pixels and resolution in dots per inch, 0 = as the picture has it (one of width and height alone keeps
    /// its shape). Returns what went wrong in plain words, empty where nothing did. Never throws.
    virtual QString convertEx(const QString &bmpFile, const QString &outputFile, int quality, int width, int height,
                              int resolution) = 0;
};

using ImageComponentFactory = std::unique_ptr<ImageComponent> (*)();

/// Registers a component in the place of the one of that name. A library that registers itself may be unloaded
/// afterwards, so its factory's code must lie outside it. Callable from any thread, as the next two.
void registerImageComponent(QStringView programId, ImageComponentFactory factory);
/// False where there is none of that name.
bool unregisterImageComponent(const QString &programId);
/// Null where none of that name is registered. "Pictarex.Compendium" is from the beginning: our own.
std::unique_ptr<ImageComponent> createImageComponent(const QString &programId);

/// Our own component: writes JPEG.
std::unique_ptr<ImageComponent> createJpegComponent();

} // namespace kalvenor::desktop
