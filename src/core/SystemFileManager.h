#pragma once

#include <string>

#include "core/FileManager.h"

namespace tarnwick {

// The files of the device. With a root, every path is below that folder.
class SystemFileManager : public FileManager {
public:
    explicit SystemFileManager(std::string root = {});

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
    std::string placed(std::string_view path) const;

    std::string root_;
};

}  // namespace tarnwick
