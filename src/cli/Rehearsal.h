// For --dry-run: what a run would do, told instead of done.
#pragma once

#include "cli/Output.h"
#include "core/CommandRunner.h"
#include "core/FileManager.h"

namespace tarnwick {

class RehearsalRunner : public CommandRunner {
public:
    explicit RehearsalRunner(Output& output) : output_(output) {}
    int run(const std::string& line) override;

private:
    Output& output_;
};

// Looks at the real files and changes none.
class RehearsalFileManager : public FileManager {
public:
    RehearsalFileManager(const FileManager& files, Output& output);

    bool exists(std::string_view path) const override;
    std::optional<std::vector<std::string>> list(std::string_view path) const override;
    std::optional<std::string> readText(std::string_view path) const override;
    std::optional<std::string> readData(std::string_view path) const override;
    std::uint64_t fileSize(std::string_view path) const override;
    std::optional<std::time_t> modificationTime(std::string_view path) const override;
    std::int64_t fileSystemSize(std::string_view path) const override;
    std::int64_t fileSystemFreeSize(std::string_view path) const override;
    bool remove(std::string_view path) override;
    bool copy(std::string_view from, std::string_view to) override;
    bool createDirectory(std::string_view path) override;
    bool createFile(std::string_view path) override;
    bool writeText(std::string_view path, std::string_view text) override;

private:
    bool tell(const std::string& change, std::string_view path);

    const FileManager& files_;
    Output& output_;
};

}  // namespace tarnwick
