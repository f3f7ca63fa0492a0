#include "cli/Rehearsal.h"

namespace tarnwick {

int RehearsalRunner::run(const std::string& line) {
    output_.result("run: " + line, {{"run", line}});
    return 0;
}

RehearsalFileManager::RehearsalFileManager(const FileManager& files, Output& output)
    : files_(files), output_(output) {}

bool RehearsalFileManager::exists(std::string_view path) const {
    return files_.exists(path);
}

std::optional<std::vector<std::string>> RehearsalFileManager::list(std::string_view path) const {
    return files_.list(path);
}

std::optional<std::string> RehearsalFileManager::readText(std::string_view path) const {
    return files_.readText(path);
}

std::optional<std::string> RehearsalFileManager::readData(std::string_view path) const {
    return files_.readData(path);
}

std::uint64_t RehearsalFileManager::fileSize(std::string_view path) const {
    return files_.fileSize(path);
}

std::optional<std::time_t> RehearsalFileManager::modificationTime(std::string_view path) const {
    return files_.modificationTime(path);
}

std::int64_t RehearsalFileManager::fileSystemSize(std::string_view path) const {
    return files_.fileSystemSize(path);
}

std::int64_t RehearsalFileManager::fileSystemFreeSize(std::string_view path) const {
    return files_.fileSystemFreeSize(path);
}

bool RehearsalFileManager::tell(const std::string& change, std::string_view path) {
    output_.result(change + ": " + std::string(path), {{change, std::string(path)}});
    return true;
}

bool RehearsalFileManager::remove(std::string_view path) {
    return tell("remove", path);
}

bool RehearsalFileManager::copy(std::string_view from, std::string_view to) {
    output_.result("copy: " + std::string(from) + " to " + std::string(to),
                   {{"copy", std::string(from)}, {"to", std::string(to)}});
    return true;
}

bool RehearsalFileManager::createDirectory(std::string_view path) {
    return tell("create folder", path);
}

bool RehearsalFileManager::createFile(std::string_view path) {
    return tell("create file", path);
}

bool RehearsalFileManager::writeText(std::string_view path, std::string_view) {
    return tell("write", path);
}

}  // namespace tarnwick
