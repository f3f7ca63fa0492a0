#pragma once

#include <QByteArray>
#include <QString>

#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"
#include "platform/mail/Mailer.h"
#include "platform/threads/WeakDelegate.h"
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
// nothing itself. Main thread.
class MailComposeViewController : public ViewController, public AlertDelegate {
    Q_OBJECT

public:
    // The mailer must outlive what it is asked for.
    explicit MailComposeViewController(Mailer& mailer);

    // Held weakly; a QObject too.
    void setMailComposeDelegate(MailComposeViewControllerDelegate* delegate) {
        delegate_.set(delegate);
    }
    void setSubject(const QString& subject) { preset_.subject = subject; }
    void setMessageBody(const QString& text, IsHtml isHtml);
    // Null data makes an entry without any.
    void addAttachmentData(const QByteArray& data, const QString& mimeType,
                           const QString& fileName);

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
    void send();
    void handOver(Order order, MailComposeResult result, const QString& meanwhile);
    void finish(MailComposeResult result, const QString& error);

    Outlet<QQuickItem> form_{this, "form"};
    Outlet<QQuickItem> recipientsField_{this, "recipientsField"};
    Outlet<QQuickItem> subjectField_{this, "subjectField"};
    Outlet<QQuickItem> bodyField_{this, "bodyField"};

    Mailer& mailer_;
    ComposedMail preset_;
    WeakDelegate<MailComposeViewControllerDelegate> delegate_;
};

}  // namespace tarnwick
