#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/FileManager.h"

namespace tarnwick {

// The packages of dpkg's database that are installed, without their architectures.
std::set<std::string> installedPackages(const FileReader& files);

// "NAME:ARCHITECTURE", as lists have some packages, without the architecture.
std::string withoutArchitecture(const std::string& package);

// The packages that the saved list wants installed and that are not, by name, in the list's order.
// Of a restore, the only trace: the status of its line is that of the last step alone.
std::vector<std::string> missingPackages(const FileReader& files);

}  // namespace tarnwick
