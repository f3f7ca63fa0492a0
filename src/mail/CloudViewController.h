#pragma once

#include "core/FileManager.h"
#include "core/Log.h"
#include "platform/mail/MailComposeViewController.h"
#include "screens/FrontScreen.h"
#include "screens/ScreenStyle.h"

namespace tarnwick {

// The screen that mails the saved list of installed packages. Only the log tells what becomes of a
// mail. Main thread.
class CloudViewController : public FrontScreen, public MailComposeViewControllerDelegate {
public:
    // All three must outlive the controller.
    CloudViewController(const FileReader& files, Mailer& mailer, Log& log);

    Outlet<QQuickItem> packageListState{this, "packageListState"};
    Outlet<QQuickItem> mailerState{this, "mailerState"};
    StyledOutlet sendBackupButton{this, "sendBackupButton", styleButton};

    // Composes the mail, whether or not there is a list, and presents it.
    void sendBackup(QQuickItem* sender);

    void mailComposeControllerDidFinishWithResult(MailComposeViewController& composer,
                                                  MailComposeResult result,
                                                  const QString& error) override;

protected:
    void viewDidLoad() override;

private:
    const FileReader& files_;
    Mailer& mailer_;
    Log& log_;
};

}  // namespace tarnwick
