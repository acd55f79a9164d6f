// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include <QString>

// What a page in HTML needs beyond the printed one.
namespace kalvenor::report {

/// The chosen name up to its last ".", then "-", the report's name and the text, as far as they may stand in a file
/// name, and the extension (".html", ".jpg").
/// Throws Error(InvalidProcedureCall) for a name without a ".", or with "*" or "?", which stand for other files.
basic::WindowsPath exportName(const basic::WindowsPath &chosen, const QString &reportName, const QString &text,
                              const QString &extension);

/// Name without its folder.
QString fileNameOf(const basic::WindowsPath &path);
/// Folder with its backslash at the end.
basic::WindowsPath folderOf(const basic::WindowsPath &path);

/// Where the host program puts its pages, with its backslash at the end.
basic::WindowsPath outputFolder(const host::Host &host);
/// The picture for persons without one of their own, beside the page.
basic::WindowsPath symbolFile(const basic::WindowsPath &exportFile);

/// The chart's picture, a file beside the page.
QString chartTag(const basic::WindowsPath &pictureFile);

/// Name of the page that the host program writes for a person.
QString personPage(qint32 counter, const QString &reportName);

/// The link to a person's page, around what follows in the cell. The page's name stands without quotes.
QString personLink(const QString &page, const QString &pictureFile, const QString &alternativeText);

/// Where the page is written as it is, beside its place: an old page stays until the new one is whole.
basic::WindowsPath rawPage(const basic::WindowsPath &exportFile);

/// Makes the page of the raw one: turns every "&lt;" and "&gt;" back, so that the tags among the text are tags. Deletes
/// every ".htmlx" file of the folder, the raw page among them. Throws Error(WriteFailed).
void htmlnachbearbeiten(const host::Host &host, const basic::WindowsPath &exportFile);

} // namespace kalvenor::report
