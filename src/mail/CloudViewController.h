#pragma once

#include "core/FileManager.h"
#include "core/Log.h"
#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"
#include "platform/mail/MailComposeViewController.h"

namespace tarnwick {

// The screen that mails the saved list of installed packages. What becomes of a mail is told in the
// log only. Main thread.
class CloudViewController : public ViewController, public MailComposeViewControllerDelegate {
    Q_OBJECT

public:
    // All three must outlive the controller.
    CloudViewController(const FileManager& files, Mailer& mailer, Log& log);

    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};
    Outlet<QQuickItem> contentView{this, "contentView"};
    Outlet<QQuickItem> sendBackupButton{this, "sendBackupButton"};

    // Composes the mail, whether or not there is a list, and presents it.
    void sendBackup(QQuickItem* sender);

    void mailComposeControllerDidFinishWithResult(MailComposeViewController& composer,
                                                  MailComposeResult result,
                                                  const QString& error) override;

protected:
    void viewDidLoad() override;

private:
    const FileManager& files_;
    Mailer& mailer_;
    Log& log_;
};

}  // namespace tarnwick
