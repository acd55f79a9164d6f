// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QString>

// Our own texts in a language that the catalogue does not have: a file in the resources, see resources/texts/README.md.
namespace kalvenor::language {

using TextFile = std::map<qint16, QString>;

/// The wordings of a file's text; lines that are none are passed over.
TextFile readTextFile(const QString &content);

/// Those of `:/texts/<language>.txt`, whatever the case of the name; empty where there is no such file.
TextFile textsOfLanguage(const QString &language);

} // namespace kalvenor::language
