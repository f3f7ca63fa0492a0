#include "support/Events.h"

#include <fstream>

namespace tarnwick::testing {

namespace {

// A line feed within a text stands as "\n" in the table.
std::string withLineFeeds(std::string line) {
    for (auto found = line.find("\\n"); found != std::string::npos; found = line.find("\\n"))
        line.replace(found, 2, "\n");
    return line;
}

}  // namespace

std::map<std::string, Entries> literalEvents() {
    std::map<std::string, Entries> table;
    std::ifstream file(TARNWICK_EVENTS_FILE);
    std::string scene;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[')
            scene = line.substr(1, line.size() - 2);
        else
            table[scene].push_back(withLineFeeds(line));
    }
    return table;
}

}  // namespace tarnwick::testing
