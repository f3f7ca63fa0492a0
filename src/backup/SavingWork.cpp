#include "backup/SavingWork.h"

#include "core/SafeguardPaths.h"
#include "core/TextLines.h"

namespace tarnwick {

namespace {

// Cydia's lines come first. Nothing is dropped, empty lines included.
std::string mergedSources(const FileManager& files) {
    const auto ownText = files.readText(paths::ownAptList);
    const auto cacheText = files.readText(paths::cydiaCacheList);
    Lines lines = splitLines(cacheText);
    const Lines ownLines = splitLines(ownText);
    lines.insert(lines.end(), ownLines.begin(), ownLines.end());
    return joinLines(lines);
}

void saveCachedSources(FileManager& files) {
    if (files.exists(paths::savedSourcesList))
        files.remove(paths::savedSourcesList);
    if (!files.exists(paths::ownAptList)) {
        files.copy(paths::cydiaCacheList, paths::savedSourcesList);
        return;
    }
    const std::string text = mergedSources(files);
    files.createFile(paths::savedSourcesList);
    files.writeText(paths::savedSourcesList, text);
}

void saveCydiaList(FileManager& files) {
    if (files.exists(paths::savedCydiaList))
        files.remove(paths::savedCydiaList);
    files.copy(paths::cydiaAptList, paths::savedCydiaList);
}

}  // namespace

void saveSourceLists(FileManager& files) {
    if (files.exists(paths::cydiaCacheList))
        saveCachedSources(files);
    else
        saveCydiaList(files);
}

void savePackageSelections(CommandRunner& runner) {
    runner.run("dpkg --get-selections > " + std::string(paths::savedPackages));
}

void archiveItem(const BackupItem& item, const std::vector<std::string>& lines,
                 CommandRunner& runner, FileManager& files) {
    for (const std::string& line : lines)
        runner.run(line);
    for (const std::string& staging : item.stagingPaths)
        files.remove(staging);
}

}  // namespace tarnwick
