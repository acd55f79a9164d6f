// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>

class QTextDocument;

namespace kalvenor::richtext {
struct RtfResult;
}
namespace kalvenor::host {
class Host;
}
namespace kalvenor::language {
class Sprachmodul;
}

namespace kalvenor::statistics {

class TextField;

/// The editor of the introductory text. Its texts are design-time texts.
class TextEditor : public QWidget {
    Q_OBJECT
public:
    TextEditor(language::Sprachmodul &texts, host::Host &host, QWidget *parent = nullptr);

    /// What has the focus when the page is shown. No focus proxy: it would hold Tab in the page.
    QWidget &entry() const;
    /// As long as the text is not edited, or all editing was undone, the very bytes that were set or opened; else what
    /// writeRtf makes of it.
    QByteArray rtf() const;
    /// Replaces the text; it is then not modified, and nothing can be undone. RTF, or plain text as readRtf takes it.
    void setRtf(QByteArrayView rtf);
    /// Edited or opened since it was set.
    bool isModified() const;
    void setModified(bool modified);
    /// Nothing but blanks.
    bool isEmpty() const;
    const QTextDocument &document() const;

    /// Lets the user choose a file whose text replaces this one; that can be undone.
    void openText();
    /// Lets the user choose a file and writes rtf() into it. isModified() stays.
    void saveText();

Q_SIGNALS:
    /// The user changed the text or opened another one.
    void changed();
    /// For the status bar.
    void said(const QString &message);

private:
    void sayWhatIsMissing(const richtext::RtfResult &result, const QString &name);
    void showError(const QString &message);
    bool readFile(const QString &file, QByteArray &content);

    language::Sprachmodul &m_texts;
    host::Host &m_host;
    TextField *m_field;
    QByteArray m_original;  ///< what the document's unmodified state was read from
    bool m_flagged = false; ///< modified, though the document stands at its unmodified state
    bool m_filling = false; ///< by the program, not by the user
};

} // namespace kalvenor::statistics
