#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// The texts in their order, with the separator between them.
template <class Texts>
std::string joined(const Texts& texts, std::string_view separator) {
    std::string whole;
    bool isFirst = true;
    for (const auto& text : texts) {
        if (!isFirst)
            whole += separator;
        whole += text;
        isFirst = false;
    }
    return whole;
}

}  // namespace tarnwick
