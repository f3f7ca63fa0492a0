#include "core/Descendants.h"

#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>

namespace tarnwick {

namespace {

namespace fs = std::filesystem;

using Children = std::multimap<pid_t, pid_t>;  // of each process

std::optional<pid_t> numberIn(const std::string& name) {
    pid_t number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    if (error != std::errc() || end != name.data() + name.size())
        return std::nullopt;
    return number;
}

// Null if it has ended. The name before these fields, in parentheses, may contain anything.
std::optional<pid_t> parentOf(const fs::path& process) {
    std::ifstream file(process / "stat");
    std::string text;
    std::getline(file, text, '\0');
    const std::size_t end = text.rfind(')');
    if (end == std::string::npos)
        return std::nullopt;
    std::istringstream fields(text.substr(end + 1));
    char state = 0;
    pid_t parent = 0;
    fields >> state >> parent;
    return parent;
}

Children allChildren() {
    Children children;
    std::error_code error;
    for (fs::directory_iterator entry("/proc", error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        const auto process = numberIn(entry->path().filename().string());
        const auto parent = process ? parentOf(entry->path()) : std::nullopt;
        if (parent)
            children.emplace(*parent, *process);
    }
    return children;
}

}  // namespace

std::vector<pid_t> descendants() {
    const Children children = allChildren();
    std::vector<pid_t> found = {::getpid()};
    for (std::size_t index = 0; index < found.size(); ++index) {
        const auto [first, last] = children.equal_range(found[index]);
        for (auto child = first; child != last; ++child)
            found.push_back(child->second);
    }
    return {found.begin() + 1, found.end()};
}

}  // namespace tarnwick
