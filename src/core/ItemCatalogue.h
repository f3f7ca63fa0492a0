#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// What a restore offers once the data is back.
enum class Offer { None, Respring, Reboot };

// One archive of a data set, and the alert to show if it is missing after a save.
struct BackupArchive {
    std::string path;
    std::string errorTitle;
    std::string errorMessage;
};

// One data set of the stock applications: every path, command line and text that saving, restoring
// and sizing it takes. Commands run in their order.
struct BackupItem {
    std::string key;

    std::vector<std::string> sourcePaths;
    std::vector<std::string> stagingPaths;
    std::vector<BackupArchive> archives;
    std::string successTitle;
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

    std::vector<std::string> archivePaths() const;
    // Its existence decides whether there is a backup to restore or to measure.
    const std::string& firstArchivePath() const { return archives.front().path; }
};

// The items, in the order of the buttons and of every run over all of them. Constant.
class ItemCatalogue {
public:
    ItemCatalogue();

    // Null if there is no item of that key.
    const BackupItem* find(std::string_view key) const;

    std::vector<BackupItem>::const_iterator begin() const { return items_.begin(); }
    std::vector<BackupItem>::const_iterator end() const { return items_.end(); }
    std::size_t size() const { return items_.size(); }
    const BackupItem& back() const { return items_.back(); }

private:
    std::vector<BackupItem> items_;
};

}  // namespace tarnwick
