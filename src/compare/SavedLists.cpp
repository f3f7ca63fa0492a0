#include "compare/SavedLists.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>

#include "core/SafeguardPaths.h"
#include "core/TextLines.h"
#include "guard/MissingPackages.h"

namespace tarnwick {

namespace {

using Texts = std::vector<std::string>;

SavedList stateOf(const std::string& word, const Texts& wanted, bool isSaved, Texts notSaved) {
    SavedList list = {.word = word};
    if (wanted.empty())
        list.state = SavedList::State::NothingToSave;
    else if (!isSaved)
        list.state = SavedList::State::Missing;
    else if (!notSaved.empty())
        list.state = SavedList::State::OutOfDate;
    list.notSaved = std::move(notSaved);
    return list;
}

// The lines that say something.
Texts linesOf(const std::optional<std::string>& text) {
    Texts lines;
    for (const std::string_view line : splitLines(text))
        if (line.find_first_not_of(" \t") != std::string_view::npos)
            lines.emplace_back(line);
    return lines;
}

// What a save of the sources would save, where it would.
SavedList sourcesOf(const FileReader& files) {
    const bool hasCache = files.exists(paths::cydiaCacheList);
    Texts wanted = linesOf(files.readText(hasCache ? paths::cydiaCacheList : paths::cydiaAptList));
    if (hasCache && files.exists(paths::ownAptList))
        std::ranges::copy(linesOf(files.readText(paths::ownAptList)), std::back_inserter(wanted));
    const auto saved = files.readText(hasCache ? paths::savedSourcesList : paths::savedCydiaList);
    Texts notSaved;
    for (const std::string_view line :
         linesWithout({wanted.begin(), wanted.end()}, splitLines(saved)))
        notSaved.emplace_back(line);
    return stateOf("sources", wanted, saved.has_value(), std::move(notSaved));
}

SavedList packagesOf(const FileReader& files) {
    const std::set<std::string> installed = installedPackages(files);
    const auto saved = files.readText(paths::savedPackages);
    std::istringstream list(saved.value_or(""));
    std::set<std::string> listed;
    for (std::string package, selection; list >> package >> selection;)
        listed.insert(withoutArchitecture(package));
    Texts notSaved;
    std::ranges::set_difference(installed, listed, std::back_inserter(notSaved));
    return stateOf("packages", {installed.begin(), installed.end()}, saved.has_value(),
                   std::move(notSaved));
}

}  // namespace

std::vector<SavedList> compareSavedLists(const FileReader& files) {
    return {sourcesOf(files), packagesOf(files)};
}

}  // namespace tarnwick
