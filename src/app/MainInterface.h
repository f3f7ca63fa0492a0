#pragma once

#include <memory>

#include "platform/controllers/Storyboard.h"
#include "screens/ScreenServices.h"

namespace tarnwick {

// The program's scenes, with the classes of their controllers and segues. The services outlive
// everything made from it.
std::shared_ptr<const Storyboard> loadMainStoryboard(const ScreenServices& services);

}  // namespace tarnwick
