#pragma once

#include <string>

#include "core/FileManager.h"
#include "guard/KeptList.h"
#include "guard/LiveData.h"

namespace tarnwick {

// Passes file calls on, keeps a saved list until there is another, and reports what failed. All
// paths are below the root.
class GuardedFiles : public FileManager {
public:
    GuardedFiles(FileManager& files, const LiveData& data, const FaultListener& faults,
                 std::string root);

    bool exists(std::string_view path) const override;
    bool isReadable(std::string_view path) const override;
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
    bool isInPlace(std::string_view path) const;
    bool reported(bool done, std::string_view path, std::string_view verb) const;
    bool settled(bool done, std::string_view list);

    FileManager& files_;
    const LiveData& data_;
    const FaultListener& faults_;
    const std::string root_;
};

}  // namespace tarnwick
