#pragma once

#include "backup/BackupOperations.h"
#include "options/OptionsOperations.h"
#include "restore/RestoreOperations.h"
#include "support/Diary.h"

namespace tarnwick::testing {

// All operations on recording seams. Files set a scene: archives are files like any other.
struct Operations {
    TemporaryFolder folder;
    Diary diary;
    ItemCatalogue catalogue;
    RecordingRunner runner{diary};
    RecordingFileManager files{diary, folder};
    RecordingFeedback feedback{diary};
    SteppedQueues queues{diary};
    BackupOperations backup{catalogue, runner, files, feedback, queues};
    RestoreOperations restore{catalogue, runner, files, feedback, queues};
    OptionsOperations options{catalogue, runner, files, feedback, queues};

    const BackupItem& item(const std::string& key) const { return *catalogue.find(key); }
};

inline const std::string library = "/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/";
inline const std::string savedList =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/sources.list";
inline const std::string savedCydia =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/cydia.list";
inline const std::string savedPackages =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages/installed-packages.txt";
inline const std::string cache = "/var/mobile/Library/Caches/com.saurik.Cydia/sources.list";
inline const std::string ownList = "/etc/apt/sources.list.d/TWKSources.list";
inline const std::string cydiaList = "/etc/apt/sources.list.d/cydia.list";

}  // namespace tarnwick::testing
