#include "screens/FrontScreen.h"

#include "platform/motion/Frames.h"
#include "ui/reveal/RevealSegues.h"

namespace tarnwick {

void FrontScreen::completeView() {
    for (const StyledOutlet* outlet : styledOutlets_)
        outlet->applyStyle();
    pinToWidth(contentView.get(), view());
    wireToRevealContainer(*this, *sidebarButton.get());
}

}  // namespace tarnwick
