#include "cli/SavedThings.h"

#include <algorithm>

#include "cli/Words.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// A save writes one of two lists and leaves the other one as it is.
std::vector<std::string> sourceLists(const FileReader& files, bool hasCache) {
    std::vector<std::string> lists;
    for (const std::string_view list : {paths::savedSourcesList, paths::savedCydiaList})
        if (files.exists(list))
            lists.emplace_back(list);
    if (lists.empty())
        lists.emplace_back(hasCache ? paths::savedSourcesList : paths::savedCydiaList);
    return lists;
}

SavedThing sources(const FileReader& files) {
    const bool hasCache = files.exists(paths::cydiaCacheList);
    return {.word = sourcesWord,
            .originals = {std::string(hasCache ? paths::cydiaCacheList : paths::cydiaAptList)},
            .copies = sourceLists(files, hasCache)};
}

SavedThing thingOf(const BackupItem& item) {
    return {
        .word = kebabCase(item.key), .originals = item.sourcePaths, .copies = item.archivePaths()};
}

std::vector<SavedThing> thingsOf(const FileReader& files, const ItemCatalogue& catalogue,
                                 const std::string& word) {
    if (word == sourcesWord)
        return {sources(files)};
    if (word == packagesWord)
        return {{.word = word, .copies = {std::string(paths::savedPackages)}}};
    std::vector<SavedThing> things;
    for (const BackupItem& item : catalogue)
        if (word == everyItem || word == kebabCase(item.key))
            things.push_back(thingOf(item));
    return things;
}

}  // namespace

std::vector<SavedThing> savedThings(const FileReader& files, const ItemCatalogue& catalogue,
                                    const std::vector<std::string>& words) {
    std::vector<SavedThing> things;
    for (const std::string& word : words)
        for (SavedThing& thing : thingsOf(files, catalogue, word))
            if (std::ranges::find(things, thing.word, &SavedThing::word) == things.end())
                things.push_back(std::move(thing));
    return things;
}

bool hasOriginal(const FileReader& files, const SavedThing& thing) {
    return thing.originals.empty() || std::ranges::any_of(thing.originals, [&](const auto& path) {
               return files.exists(path);
           });
}

bool hasEveryCopy(const FileReader& files, const SavedThing& thing) {
    return std::ranges::all_of(thing.copies, [&](const auto& path) { return files.exists(path); });
}

std::int64_t copySize(const FileReader& files, const SavedThing& thing) {
    std::int64_t bytes = 0;
    for (const std::string& path : thing.copies)
        bytes += static_cast<std::int64_t>(files.fileSize(path));
    return bytes;
}

}  // namespace tarnwick
