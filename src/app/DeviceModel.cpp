#include "app/DeviceModel.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarnwick {

namespace {

struct Model {
    std::string_view machine;
    std::string_view name;
};

constexpr Model models[] = {
    {"i386", "Simulator"},       {"iPod3,1", "iPod Touch 3"}, {"iPod4,1", "iPod Touch 4"},
    {"iPod5,1", "iPod Touch 5"}, {"iPod7,1", "iPod Touch 6"}, {"iPhone2,1", "iPhone 3Gs"},
    {"iPhone3,1", "iPhone 4"},   {"iPhone4,1", "iPhone 4s"},  {"iPhone5,1", "iPhone 5"},
    {"iPhone5,2", "iPhone 5"},   {"iPhone6,1", "iPhone 5s"},  {"iPhone6,2", "iPhone 5s"},
    {"iPhone5,3", "iPhone 5c"},  {"iPhone5,4", "iPhone 5c"},  {"iPhone7,1", "iPhone 6 Plus"},
    {"iPhone7,2", "iPhone 6"},   {"iPhone8,1", "iPhone 6s"},  {"iPhone8,2", "iPhone 6s Plus"},
    {"iPad2,1", "iPad 2"},       {"iPad2,2", "iPad 2"},       {"iPad2,3", "iPad 2"},
    {"iPad3,1", "iPad 3"},       {"iPad3,2", "iPad 3"},       {"iPad3,3", "iPad 3"},
    {"iPad3,4", "iPad 4"},       {"iPad3,5", "iPad 4"},       {"iPad3,6", "iPad 4"},
    {"iPad4,1", "iPad Air"},     {"iPad4,2", "iPad Air"},     {"iPad5,3", "iPad Air 2"},
    {"iPad5,4", "iPad Air 2"},   {"iPad2,5", "iPad Mini"},    {"iPad2,6", "iPad Mini"},
    {"iPad2,7", "iPad Mini"},    {"iPad4,4", "iPad Mini 2"},  {"iPad4,5", "iPad Mini 2"},
    {"iPad4,6", "iPad Mini 2"},  {"iPad4,7", "iPad Mini 3"},  {"iPad4,8", "iPad Mini 3"},
    {"iPad4,9", "iPad Mini 3"},
};

std::size_t lengthFound(const std::string& machine, std::string_view family) {
    return machine.find(family) != std::string::npos ? family.size() : 0;
}

}  // namespace

std::optional<std::string> platformTypeOf(const std::string& machine) {
    const auto model = std::ranges::find(models, machine, &Model::machine);
    if (model != std::end(models))
        return std::string(model->name);
    std::size_t length = std::max(lengthFound(machine, "iPhone"), lengthFound(machine, "iPad"));
    if (length == 0)
        length = lengthFound(machine, "iPod");
    // The length of the match counts, not its place.
    if (length > 0)
        return machine.substr(0, length);
    return std::nullopt;
}

}  // namespace tarnwick
