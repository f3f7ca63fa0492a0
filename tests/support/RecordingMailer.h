#pragma once

#include <utility>
#include <vector>

#include "mail/MailMessage.h"
#include "platform/mail/Mailer.h"

namespace tarnwick::testing {

// Writes down what it is asked for and answers when the test says so.
class RecordingMailer : public Mailer {
public:
    bool canSend() const override { return isInstalled; }
    QStringList recipientsIn(const QString& text) const override {
        QStringList recipients;
        for (const std::string& recipient : tarnwick::recipientsIn(text.toStdString()))
            recipients.append(QString::fromStdString(recipient));
        return recipients;
    }
    bool isRecipient(const QString& text) const override {
        return text.contains('@') && !text.endsWith('@');
    }
    void send(const ComposedMail& mail, Answer whenDone) override {
        sent.push_back(mail);
        answer_ = std::move(whenDone);
    }
    void keepDraft(const ComposedMail& mail, Answer whenDone) override {
        kept.push_back(mail);
        answer_ = std::move(whenDone);
    }
    void answer(const std::optional<QString>& fault = {}) { std::exchange(answer_, {})(fault); }

    bool isInstalled = true;
    std::vector<ComposedMail> sent;
    std::vector<ComposedMail> kept;

private:
    Answer answer_;
};

}  // namespace tarnwick::testing
