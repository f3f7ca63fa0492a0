#include "cli/documents/Fragments.h"

#include <regex>

namespace tarnwick {

std::optional<std::string> filled(const std::string& text, const Fragments& fragments,
                                  std::string& unknown) {
    static const std::regex place("@([A-Z_]+)@");
    std::string result;
    auto rest = text.cbegin();
    for (std::smatch found; std::regex_search(rest, text.cend(), found, place);) {
        const auto fragment = fragments.find(found[1]);
        if (fragment == fragments.end()) {
            unknown = found[1];
            return std::nullopt;
        }
        result.append(rest, found[0].first).append(fragment->second);
        rest = found[0].second;
    }
    return result.append(rest, text.cend());
}

}  // namespace tarnwick
