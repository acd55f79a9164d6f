// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/texteditor.h"

#include "language/forms/widgetform.h"
#include "language/texts.h"
#include "support/files.h"
#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::statistics;

namespace {

class TextEditorTest : public ::testing::Test {
protected:
    TextEditorTest()
    {
        editor.show();
        field->setFocus();
    }
    void trigger(const char *name) { editor.findChild<QAction *>(QLatin1String(name))->trigger(); }
    bool writes(const char *part) const { return editor.rtf().contains(part); }
    QString put(const QByteArray &content)
    {
        test::writeFile(texts.folder.filePath(u"a.rtf"_s), content);
        return texts.folder.filePath(u"a.rtf"_s);
    }
    void paste(const QString &html, const QByteArray &rtf = {})
    {
        auto *data = new QMimeData;
        data->setHtml(html);
        data->setText(u"plain"_s);
        if (!rtf.isEmpty())
            data->setData(u"text/rtf"_s, rtf);
        QApplication::clipboard()->setMimeData(data);
        field->paste();
    }

    test::Texts texts{{}};
    TextEditor editor{texts.module, texts.host};
    QTextEdit *field = editor.findChild<QTextEdit *>(u"RTFtextfeld0"_s);
    QSignalSpy changes{&editor, &TextEditor::changed};
    QSignalSpy messages{&editor, &TextEditor::said};
};

} // namespace

TEST_F(TextEditorTest, ToolsAndKeysFormat)
{
    const struct {
        const char *action;
        const char *rtf;
    } rows[] = {{"Fett", "\\b\\f0"},         {"Kursiv", "\\i\\f0"},        {"Unterstrichen", "\\ul\\f0"},
                {"Zentriert", "\\pard\\qc"}, {"Rechts", "\\pard\\qr"},     {"Durchgestrichen", "\\strike\\f0"},
                {"Blocksatz", "\\pard\\qj"}, {"Aufzaehlung", "\\pnlvlblt"}};
    for (const auto &row : rows) {
        editor.setRtf("Text");
        field->selectAll();
        EXPECT_FALSE(writes(row.rtf));
        trigger(row.action);
        EXPECT_TRUE(writes(row.rtf)) << row.action << editor.rtf().toStdString();
        EXPECT_TRUE(editor.findChild<QAction *>(QLatin1String(row.action))->isChecked()) << row.action;
        trigger("Formateentfernen");
        EXPECT_EQ(writes(row.rtf), row.rtf == std::string("\\pnlvlblt")) << row.action;
        EXPECT_EQ(editor.findChild<QAction *>(QLatin1String(row.action))->isChecked(), writes(row.rtf));
    }

    // A window's action with the same keys does not stand in the way.
    QAction markNothing;
    markNothing.setShortcut(Qt::CTRL | Qt::Key_U);
    editor.addAction(&markNothing);
    QSignalSpy other(&markNothing, &QAction::triggered);
    editor.setRtf("Text");
    field->selectAll();
    QTest::keyClick(field, Qt::Key_U, Qt::ControlModifier);
    EXPECT_TRUE(writes("\\ul\\f0"));
    EXPECT_EQ(other.count(), 0);

    auto *size = editor.findChild<QComboBox *>(u"Schriftgroesse"_s);
    size->setEditText(u"8,5"_s);
    Q_EMIT size->textActivated(size->currentText());
    EXPECT_TRUE(writes("\\fs17"));
    for (QAction *color : editor.findChild<QWidget *>(u"Schriftfarbe"_s)->findChild<QMenu *>()->actions()) {
        color->trigger();
        EXPECT_EQ(writes("\\cf1"), color->text() != u"Automatisch"_s) << color->text().toStdString();
    }
}

TEST_F(TextEditorTest, KeepsWhatWasNotEdited)
{
    const QByteArray original = "{\\rtf1\\ansi {\\pict 00}\\b Text}\n";
    editor.setRtf(original);
    EXPECT_EQ(editor.rtf(), original);
    EXPECT_FALSE(editor.isModified() || editor.isEmpty());
    EXPECT_EQ(changes.count(), 0);
    ASSERT_EQ(messages.count(), 1);
    EXPECT_TRUE(messages[0][0].toString().contains(u"Bilder"_s));

    QTest::keyClicks(field, u"x"_s);
    EXPECT_TRUE(editor.isModified() && changes.count() > 0 && writes("xText"));
    field->undo();
    EXPECT_EQ(editor.rtf(), original);
    QTest::keyClicks(field, u"y"_s);
    const QByteArray edited = editor.rtf();
    editor.setModified(false);
    EXPECT_FALSE(editor.isModified());
    EXPECT_EQ(editor.rtf(), edited);
    editor.setModified(true);
    EXPECT_TRUE(editor.isModified());
    editor.setRtf({});
    EXPECT_TRUE(editor.isEmpty() && editor.rtf().isEmpty() && !editor.isModified());
}

TEST_F(TextEditorTest, PastesOnlyWhatItOffers)
{
    const struct {
        const char *html;
        const char *shown;
        const char *has;
        const char *lacks;
    } rows[] = {
        {"<b>a</b><img src='http://x/y.png'><a href='http://x'>b</a>", "ab", "\\b\\f0\\fs20 a\\b0 b", "\\ul"},
        {"<p style='background:#ff0;color:#fff;font-size:16px;margin-left:40px'>a</p>", "a", "\\fs24 a", "highlight"},
        {"<table><tr><td>1<td>2<tr><td>3<td>4</table>", "1\t2\n3\t4", "1\\tab 2\\par", "trowd"},
        {"<ol><li>a<li>b</ol>", "1.\ta\n2.\tb", "1.\\tab a", "pnlvl"},
        {"<ul><li>a<li style='color:red'>b</ul>", "a\nb", "\\pnlvlblt", "\\li1200"},
        {"<p style='font-family:No Such Font,Arial;color:#222'>a", "a", " Arial;", "colortbl"},
    };
    for (const auto &row : rows) {
        editor.setRtf({});
        paste(QString::fromUtf8(row.html));
        EXPECT_EQ(field->toPlainText().trimmed().toStdString(), row.shown);
        EXPECT_TRUE(writes(row.has)) << row.html << editor.rtf().toStdString();
        EXPECT_FALSE(writes(row.lacks)) << row.html << editor.rtf().toStdString();
    }
    editor.setRtf("vor nach");
    field->moveCursor(QTextCursor::NextWord);
    paste(u"html"_s, "{\\rtf1\\i rtf\\par\\pard\\qc mitte }");
    EXPECT_EQ(field->toPlainText(), u"vor rtf\nmitte nach"_s);
    EXPECT_TRUE(writes("\\i\\f1\\fs24 rtf") || writes("\\i\\fs24 rtf")) << editor.rtf().toStdString();
    editor.setRtf({});
    trigger("Ohneformateeinfuegen");
    EXPECT_EQ(field->toPlainText(), u"plain"_s);
}

TEST_F(TextEditorTest, OpensAndSavesFiles)
{
    const QByteArray original = "{\\rtf1\\b neu\\par\\pard\\qc mitte}";
    editor.setRtf("alt");
    texts.desktop.fileAnswers = {put(original)};
    trigger("Textoeffnen");
    EXPECT_EQ(field->toPlainText(), u"neu\nmitte"_s);
    EXPECT_TRUE(editor.isModified() && changes.count() == 1);
    EXPECT_EQ(editor.rtf(), original);
    field->undo();
    EXPECT_TRUE(writes(" alt\\par")) << editor.rtf().toStdString();
    field->redo();
    EXPECT_EQ(editor.rtf(), original);

    const QString target = texts.folder.filePath(u"b.rtf"_s);
    texts.desktop.fileAnswers = {target, texts.folder.filePath(u"no/such/folder.rtf"_s)};
    trigger("Textspeichern");
    EXPECT_EQ(test::contentOf(target), original);
    EXPECT_EQ(messages.count(), 1);
    trigger("Textspeichern");
    EXPECT_EQ(texts.desktop.messages.size(), 1U);

    for (const QString &bad : {texts.folder.filePath(u"missing.rtf"_s), put(QByteArray("a\0b", 3))}) {
        texts.desktop.fileAnswers = {bad};
        trigger("Textoeffnen");
        EXPECT_TRUE(texts.desktop.messages.back().text.contains(bad));
    }
    EXPECT_EQ(texts.desktop.messages.size(), 3U);
    EXPECT_EQ(editor.rtf(), original);
    trigger("Textoeffnen"); // cancelled
    EXPECT_EQ(editor.rtf(), original);
}
