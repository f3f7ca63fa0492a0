#include "guard/MissingPackages.h"

#include <sstream>

#include "core/SafeguardPaths.h"

namespace tarnwick {

std::string withoutArchitecture(const std::string& package) {
    return package.substr(0, package.find(':'));
}

// A package is described by lines of which the first is its name.
std::set<std::string> installedPackages(const FileReader& files) {
    constexpr std::string_view name = "Package: ";
    std::set<std::string> installed;
    std::istringstream stream(files.readText(paths::packageStates).value_or(""));
    std::string package;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(name))
            package = line.substr(name.size());
        else if (line.starts_with("Status: ") && line.ends_with(" installed"))
            installed.insert(package);
    }
    return installed;
}

std::vector<std::string> missingPackages(const FileReader& files) {
    const auto installed = installedPackages(files);
    std::istringstream list(files.readText(paths::savedPackages).value_or(""));
    std::vector<std::string> missing;
    for (std::string package, selection; list >> package >> selection;)
        if (selection == "install" && !installed.contains(withoutArchitecture(package)))
            missing.push_back(package);
    return missing;
}

}  // namespace tarnwick
