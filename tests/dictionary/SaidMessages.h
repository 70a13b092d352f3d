// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the messages of the program while it lives.
#pragma once

#include "app/messages/Messages.h"

#include <QStringList>

struct SaidMessages {
    QStringList texts;
    QList<MessageKind> kinds;
    Choice answer = Choice::Yes;

    SaidMessages() {
        answerMessages([this](MessageKind kind, const QString& text) {
            texts += text;
            kinds += kind;
            return answer;
        });
    }
    ~SaidMessages() { answerMessages({}); }
    SaidMessages(const SaidMessages&) = delete;
    SaidMessages& operator=(const SaidMessages&) = delete;

    /// What was said since the last call.
    QStringList take() {
        kinds.clear();
        return std::exchange(texts, {});
    }
};
