// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/desktop.h"
#include <functional>
#include <vector>

namespace kalvenor::test {

/// A desktop that remembers what it was told and answers OK.
class FakeDesktop : public desktop::Desktop {
public:
    struct Message {
        QString text;
        int style;
        QString title;
    };
    struct Placement {
        desktop::StackPlace place;
        bool activate;
    };

    int messageBox(const QString &text, int style, const QString &title) override
    {
        messages.push_back({text, style, title});
        if (answers.empty())
            return desktop::ResultOk;
        const int answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }
    void runtimeError(const QString &, const QString &message) override { errors.push_back(message); }
    void setPointer(desktop::Pointer pointer) override { pointers.push_back(pointer); }
    bool setStackPlace(QWindow *, desktop::StackPlace place, bool activate) override
    {
        placements.push_back({place, activate});
        return true;
    }

    QString openFileName(QWidget *, const desktop::FileQuestion &question) override { return answered(question); }
    QString saveFileName(QWidget *, const desktop::FileQuestion &question) override { return answered(question); }
    QString chooseFolder(QWidget *, const desktop::FileQuestion &question) override { return answered(question); }
    bool runDialog(QDialog &dialog) override { return dialogAnswer && dialogAnswer(dialog); }

    std::vector<int> answers; ///< to the next message boxes in turn; none left: OK
    std::vector<Message> messages;
    std::vector<QString> errors;
    std::vector<desktop::Pointer> pointers;
    std::vector<Placement> placements;
    std::vector<desktop::FileQuestion> fileQuestions;
    std::vector<QString> fileAnswers;            ///< given to the next file dialogs in turn; none left: cancelled
    std::function<bool(QDialog &)> dialogAnswer; ///< fills in a dialog and says whether it is accepted

private:
    QString answered(const desktop::FileQuestion &question)
    {
        fileQuestions.push_back(question);
        if (fileAnswers.empty())
            return {};
        QString answer = fileAnswers.front();
        fileAnswers.erase(fileAnswers.begin());
        return answer;
    }
};

} // namespace kalvenor::test
