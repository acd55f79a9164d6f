// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "platform/desktop/imagecomponent.h"
#include <memory>
#include <QImage>
#include <QString>

// The pictures of the report: written as JPEG, fitted to the space on the page.
namespace kalvenor::report {

/// What shows a picture. Width and height are those of the control, in the unit of the report (twips).
struct PictureControl {
    QImage Image = {};
    double Width = 0;
    double Height = 0;
    bool AutoRedraw = true;
};

/// Converts pictures through the component "Pictarex.Compendium", which is created at the first one and kept.
class Bildumwandlung {
public:
    Bildumwandlung(const host::Host &host, language::Sprachmodul &texts) : m_host(host), m_texts(texts) {}

    /// Writes the control's picture. `file` names the wanted file and on return the one written;
    /// `type` becomes its extension, in capitals. A ".bmp" becomes a "JPG". Where there is no component, even after
    /// registering "\Pictarex.dll" of the host's folder, the user is told and the picture is a ".BMP". What the
    /// component complains of is shown; then there is no picture, and none of a type other than JPG either.
    /// An empty name does nothing. Throws Error(InvalidProcedureCall) where the name has no extension or the control
    /// no picture, Error(WriteFailed) where the BMP cannot be written.
    void bildkonvertieren(const PictureControl &control, basic::WindowsPath &file, QString &type);

private:
    bool findComponent();
    int quality() const;

    const host::Host &m_host;
    language::Sprachmodul &m_texts;
    std::unique_ptr<desktop::ImageComponent> m_component;
};

/// Registers (or unregisters) the component in a library. -1 done, 0 failed.
qint16 dllregistrieren(const host::Host &host, const basic::WindowsPath &library, bool registrieren);

/// Fits the chart's picture into a width and a height, which is first raised to the host's least picture height; the
/// picture keeps its shape, and `print` becomes its copy in the fitting size. Throws Error(InvalidProcedureCall) for a
/// width that is not above 0 or a chart without a picture.
void bildgroesse(const host::Host &host, PictureControl &chart, PictureControl &print, qint16 width, qint16 &height);

} // namespace kalvenor::report
