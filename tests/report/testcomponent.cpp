// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/imagecomponent.h"

using namespace Qt::StringLiterals;

#ifndef WITHOUT_ENTRY_POINTS

// The factory is the program's own, so it stays when this library goes.
extern "C" Q_DECL_EXPORT std::int32_t DllRegisterServer()
{
    if (qEnvironmentVariableIsSet("KALVENOR_TEST_REFUSE"))
        return -2147467259;
    kalvenor::desktop::registerImageComponent(u"Pictarex.Compendium", kalvenor::desktop::createJpegComponent);
    return 0;
}

extern "C" Q_DECL_EXPORT std::int32_t DllUnregisterServer()
{
    return kalvenor::desktop::unregisterImageComponent(u"Pictarex.Compendium"_s) ? 0 : -1;
}

#endif
