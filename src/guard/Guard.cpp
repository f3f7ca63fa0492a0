#include "guard/Guard.h"

#include <utility>

#include "core/SafeguardPaths.h"
#include "guard/ForeignLinks.h"

namespace tarnwick {

Guard::Guard(const ItemCatalogue& catalogue, CommandRunner& runner, FileManager& files,
             FaultListener faults, std::string root)
    : faults_(std::move(faults)),
      root_(std::move(root)),
      data_(catalogue, root_),
      places_(catalogue, data_, root_),
      runner_(runner, places_, faults_, root_),
      files_(files, data_, faults_, root_) {}

void Guard::clearUp() {
    places_.clear();
    for (const std::string_view list :
         {paths::savedSourcesList, paths::savedCydiaList, paths::savedPackages})
        if (!foreignLinkIn(root_, paths::folderOf(list)))
            KeptList(root_ + std::string(list)).recover();
}

}  // namespace tarnwick
