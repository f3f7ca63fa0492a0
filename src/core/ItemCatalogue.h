#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// What a restore proposes once the data is back.
enum class Offer { None, Respring, Reboot };

// One data set of the stock applications: every path, command line and text that saving, restoring
// and sizing it takes. Command lines run in their order; lists of folders and archives go in step.
struct BackupItem {
    std::string key;

    std::vector<std::string> sourcePaths;
    std::vector<std::string> stagingPaths;
    std::vector<std::string> archivePaths;
    std::string successTitle;
    std::vector<std::string> errorTitles;    // one for each archive
    std::vector<std::string> errorMessages;  // one for each archive
    std::vector<std::string> saveCommands;
    std::vector<std::string> allInOneSaveCommands;

    std::string restoreTitle;
    std::string missingBackupMessage;
    std::optional<std::string> stopCommand;  // ends the application that uses the data
    std::vector<std::string> restoreCommands;
    Offer offer = Offer::None;

    std::string sizeButtonTitle;
    std::string sizeResultName;
    std::vector<std::string> sizeCommands;
    std::vector<std::string> sizeArchivePaths;
    std::vector<std::string> sizeCopyPaths;
};

// The eleven items, in the order of the buttons and of every run over all of them. Constant.
class ItemCatalogue {
public:
    ItemCatalogue();

    // None if there is no item of that key.
    const BackupItem* find(std::string_view key) const;

    std::vector<BackupItem>::const_iterator begin() const { return items_.begin(); }
    std::vector<BackupItem>::const_iterator end() const { return items_.end(); }
    std::size_t size() const { return items_.size(); }
    const BackupItem& operator[](std::size_t index) const { return items_[index]; }

private:
    std::vector<BackupItem> items_;
};

}  // namespace tarnwick
