#pragma once

#include <string>
#include <vector>

#include "core/FileManager.h"

namespace tarnwick {

// A saved list against what it is a list of.
struct SavedList {
    enum class State { UpToDate, NothingToSave, Missing, OutOfDate };

    std::string word;  // what saves it: "sources"
    State state = State::UpToDate;
    std::vector<std::string> notSaved;  // lines of sources, names of packages
};

// The sources and the packages.
std::vector<SavedList> compareSavedLists(const FileReader& files);

}  // namespace tarnwick
