#pragma once

#include "screens/FrontScreen.h"

namespace tarnwick {

// The Help screen: static text.
class HelpViewController : public FrontScreen {
public:
    StyledOutlet mainHelp{this, "mainHelp", fillWithHelpText};
    StyledOutlet questionUntether{this, "questionUntether", fillWithHelpText};
    StyledOutlet replyUntether{this, "replyUntether", fillWithHelpText};
    StyledOutlet questionMajorIosUpdate{this, "questionMajorIosUpdate", fillWithHelpText};
    StyledOutlet replyMAjorIosUpdate{this, "replyMAjorIosUpdate", fillWithHelpText};
    StyledOutlet questionTime{this, "questionTime", fillWithHelpText};
    StyledOutlet replyTime{this, "replyTime", fillWithHelpText};
    StyledOutlet questionCydia{this, "questionCydia", fillWithHelpText};
    StyledOutlet replyCydia{this, "replyCydia", fillWithHelpText};

protected:
    void viewDidLoad() override;

private:
    static void fillWithHelpText(QQuickItem* label);
};

}  // namespace tarnwick
