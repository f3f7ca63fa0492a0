#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"
#include "platform/mail/Mailer.h"
#include "platform/windows/AlertPresenter.h"

namespace tarnwick {

class MailComposeViewController;

enum MailComposeResult : int {
    MailComposeResultCancelled = 0,
    MailComposeResultSaved = 1,
    MailComposeResultSent = 2,
    MailComposeResultFailed = 3
};

// Told once how the composing ended; has to dismiss the composer. The error says why it failed.
class MailComposeViewControllerDelegate {
public:
    virtual ~MailComposeViewControllerDelegate() = default;
    virtual void mailComposeControllerDidFinishWithResult(MailComposeViewController& composer,
                                                          MailComposeResult result,
                                                          const QString& error) = 0;
};

// Whether a text is markup: its words are taken, as what is written here is plain text.
enum class IsHtml { No, Yes };

// A sheet to write a mail on. What it starts with is to be set before it is presented. It sends
// nothing itself. If it is cut short, what was written is kept as a draft; with its delegate it
// lives until the mailer has answered. Main thread.
class MailComposeViewController : public ViewController, public AlertDelegate {
    Q_OBJECT

public:
    // The mailer must outlive what it is asked for.
    explicit MailComposeViewController(Mailer& mailer);

    // Held weakly until something is handed to the mailer.
    void setMailComposeDelegate(const std::weak_ptr<MailComposeViewControllerDelegate>& delegate) {
        delegate_ = delegate;
    }
    void setSubject(const QString& subject) { preset_.subject = subject; }
    void setMessageBody(const QString& text, IsHtml isHtml);
    // Null data makes an entry without any.
    void addAttachmentData(const QByteArray& data, const QString& mimeType,
                           const QString& fileName);

    void presentationWillBeCutShort(const std::function<void()>& whenKept) override;
    void alertClickedButtonAtIndex(const Alert& alert, int index) override;
    void alertDidDismissWithButtonIndex(const Alert& alert, int index) override;

protected:
    void loadView() override;
    void viewDidLoad() override;

private slots:
    void offerSend();
    void keepFocusSeen();

private:
    using Order = void (Mailer::*)(const ComposedMail&, Mailer::Answer);

    ComposedMail written() const;
    bool isUntouched() const;
    void cancel();
    void closeQuestion();
    void send();
    void keepDraft();
    void handOver(Order order, MailComposeResult result, const QString& meanwhile);
    void finish(MailComposeResult result, const QString& error);

    Outlet<QQuickItem> form_{this, "form"};
    Outlet<QQuickItem> recipientsField_{this, "recipientsField"};
    Outlet<QQuickItem> subjectField_{this, "subjectField"};
    Outlet<QQuickItem> bodyField_{this, "bodyField"};

    Mailer& mailer_;
    ComposedMail preset_;
    std::weak_ptr<MailComposeViewControllerDelegate> delegate_;
    AlertTicket question_;
    bool isDeleted_ = false;  // even while the question still fades out
    // What the mailer was asked for.
    std::optional<MailComposeResult> underWay_;
    std::function<void()> whenFinished_ = [] {};
};

}  // namespace tarnwick
