#include "help/HelpViewController.h"

#include <QMap>

#include "help/HelpTexts.h"
#include "platform/motion/Frames.h"
#include "screens/ScreenStyle.h"
#include "ui/reveal/RevealSegues.h"

namespace tarnwick {

void HelpViewController::viewDidLoad() {
    ViewController::viewDidLoad();
    setTitle("Help");
    QMap<QString, QQuickItem*> labels;
    for (const auto* label :
         {&mainHelp, &questionUntether, &replyUntether, &questionMajorIosUpdate,
          &replyMAjorIosUpdate, &questionTime, &replyTime, &questionCydia, &replyCydia})
        labels.insert(label->name(), label->get());
    for (const HelpText& text : helpTexts())
        fillLabel(labels.value(QString::fromStdString(text.label)),
                  QString::fromStdString(text.text));
    pinToWidth(contentView.get(), view());
    wireToRevealContainer(*this, *sidebarButton.get());
}

}  // namespace tarnwick
