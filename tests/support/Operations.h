#pragma once

#include "backup/BackupOperations.h"
#include "core/SafeguardPaths.h"
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
    OperationServices services{.catalogue = catalogue,
                               .runner = runner,
                               .files = files,
                               .changes = files,
                               .feedback = feedback,
                               .queues = queues};
    BackupOperations backup{services};
    RestoreOperations restore{services};
    OptionsOperations options{services};

    const BackupItem& item(const std::string& key) const { return *catalogue.find(key); }
};

inline const std::string library = std::string(paths::archiveFolder) + "/";
inline const std::string savedList(paths::savedSourcesList);
inline const std::string savedCydia(paths::savedCydiaList);
inline const std::string savedPackages(paths::savedPackages);
inline const std::string cache(paths::cydiaCacheList);
inline const std::string ownList(paths::ownAptList);
inline const std::string cydiaList(paths::cydiaAptList);

}  // namespace tarnwick::testing
