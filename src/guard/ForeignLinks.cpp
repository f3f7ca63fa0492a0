#include "guard/ForeignLinks.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace tarnwick {

namespace {

bool isForeign(const std::string& path) {
    struct stat link = {};
    struct stat target = {};
    return ::lstat(path.c_str(), &link) == 0 && S_ISLNK(link.st_mode) &&
           link.st_uid != ::geteuid() && ::stat(path.c_str(), &target) == 0 &&
           target.st_uid != link.st_uid;
}

}  // namespace

std::optional<std::string> foreignLinkIn(const std::string& root, std::string_view path) {
    for (std::size_t end = 0; end < path.size();) {
        end = std::min(path.find('/', end + 1), path.size());
        std::string part(path.substr(0, end));
        if (isForeign(root + part))
            return part;
    }
    return std::nullopt;
}

std::string textOfForeignLink(const std::string& link) {
    return link + " is not followed: it leads to what does not belong to the link's owner";
}

}  // namespace tarnwick
