#include "backup/SavingWork.h"

#include "core/SafeguardPaths.h"
#include "core/TextLines.h"

namespace tarnwick {

namespace {

// Cydia's lines come first. Nothing is dropped, empty lines included.
std::string mergedSources(const FileReader& files) {
    const auto ownText = files.readText(paths::ownAptList);
    const auto cacheText = files.readText(paths::cydiaCacheList);
    Lines lines = splitLines(cacheText);
    const Lines ownLines = splitLines(ownText);
    lines.insert(lines.end(), ownLines.begin(), ownLines.end());
    return joinLines(lines);
}

void saveCachedSources(const FileReader& files, FileWriter& changes) {
    if (files.exists(paths::savedSourcesList))
        changes.remove(paths::savedSourcesList);
    if (!files.exists(paths::ownAptList)) {
        changes.copy(paths::cydiaCacheList, paths::savedSourcesList);
        return;
    }
    const std::string text = mergedSources(files);
    changes.createFile(paths::savedSourcesList);
    changes.writeText(paths::savedSourcesList, text);
}

void saveCydiaList(const FileReader& files, FileWriter& changes) {
    if (files.exists(paths::savedCydiaList))
        changes.remove(paths::savedCydiaList);
    changes.copy(paths::cydiaAptList, paths::savedCydiaList);
}

}  // namespace

void saveSourceLists(const FileReader& files, FileWriter& changes) {
    if (files.exists(paths::cydiaCacheList))
        saveCachedSources(files, changes);
    else
        saveCydiaList(files, changes);
}

void savePackageSelections(CommandRunner& runner) {
    runner.run("dpkg --get-selections > " + std::string(paths::savedPackages));
}

void archiveItem(const BackupItem& item, const std::vector<std::string>& lines,
                 CommandRunner& runner, FileWriter& changes) {
    for (const std::string& line : lines)
        runner.run(line);
    for (const std::string& staging : item.stagingPaths)
        changes.remove(staging);
}

}  // namespace tarnwick
