#include "help/HelpViewController.h"

#include <algorithm>

#include "help/HelpTexts.h"
#include "screens/ScreenStyle.h"

namespace tarnwick {

void HelpViewController::viewDidLoad() {
    FrontScreen::viewDidLoad();
    setTitle("Help");
    completeView();
}

void HelpViewController::fillWithHelpText(QQuickItem* label) {
    const auto text =
        std::ranges::find(helpTexts(), label->objectName().toStdString(), &HelpText::label);
    fillLabel(label, QString::fromStdString(text->text));
}

}  // namespace tarnwick
