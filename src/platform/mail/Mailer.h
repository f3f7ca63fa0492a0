#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace tarnwick {

struct ComposedAttachment {
    QByteArray data;  // null if there is none
    QString mimeType;
    QString fileName;
};

// What a person has written in a mail composer.
struct ComposedMail {
    QStringList recipients;
    QString subject;
    QString body;
    QList<ComposedAttachment> attachments;
};

// What becomes of a mail that was composed. Main thread: each call returns at once, and the answer
// comes there too, once. The answer is the reason for a failure, as a sentence.
class Mailer {
public:
    using Answer = std::function<void(const std::optional<QString>& fault)>;

    virtual ~Mailer() = default;
    // Whether there is anything that sends; drafts can always be tried.
    virtual bool canSend() const = 0;
    // The recipients in a text that was typed.
    virtual QStringList recipientsIn(const QString& text) const = 0;
    virtual bool isRecipient(const QString& text) const = 0;
    virtual void send(const ComposedMail& mail, Answer whenDone) = 0;
    virtual void keepDraft(const ComposedMail& mail, Answer whenDone) = 0;
};

}  // namespace tarnwick
