#pragma once

#include <string>

#include "core/TaskQueues.h"
#include "mail/Drafts.h"
#include "mail/Transport.h"
#include "platform/mail/Mailer.h"

namespace tarnwick {

// Sends mails with the system's mailer and keeps drafts in the owner's folder, in the background. A
// mail that cannot be sent becomes a draft.
// The queues must outlive it.
class ComposerMailer : public Mailer {
public:
    explicit ComposerMailer(TaskQueues& queues, std::string program = systemMailer,
                            DraftPlace drafts = {});

    bool canSend() const override;
    QStringList recipientsIn(const QString& text) const override;
    bool isRecipient(const QString& text) const override;
    void send(const ComposedMail& mail, Answer whenDone) override;
    void keepDraft(const ComposedMail& mail, Answer whenDone) override;

private:
    using Work = std::function<std::optional<std::string>()>;

    void inBackground(Work work, Answer whenDone);

    TaskQueues& queues_;
    const std::string program_;
    const DraftPlace drafts_;
};

}  // namespace tarnwick
