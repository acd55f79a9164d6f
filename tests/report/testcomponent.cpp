// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/imagecomponent.h"

#ifndef WITHOUT_ENTRY_POINTS

// The factory is the program's own, so it stays when this library goes.
extern "C" Q_DECL_EXPORT std::int32_t DllRegisterServer()
{
    if (qEnvironmentVariableIsSet("KALVENOR_TEST_REFUSE"))
        return -2147467259;
    kalvenor::registerImageComponent(u"Pictarex.Compendium", kalvenor::createJpegComponent);
    return 0;
}

extern "C" Q_DECL_EXPORT std::int32_t DllUnregisterServer()
{
    return kalvenor::unregisterImageComponent(QStringLiteral("Pictarex.Compendium")) ? 0 : -1;
}

#endif
