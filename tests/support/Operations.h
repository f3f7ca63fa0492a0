#pragma once

#include "backup/BackupOperations.h"
#include "options/OptionsOperations.h"
#include "restore/RestoreOperations.h"
#include "support/Diary.h"

namespace tarnwick::testing {

// All operations on recording seams. Text sets a scene: archives are files like any other.
struct Operations {
    Diary diary;
    ItemCatalogue catalogue;
    RecordingRunner runner{diary};
    RecordingFileManager files{diary};
    RecordingFeedback feedback{diary};
    SteppedQueues queues{diary};
    BackupOperations backup{catalogue, runner, files, feedback, queues};
    RestoreOperations restore{catalogue, runner, files, feedback, queues};
    OptionsOperations options{catalogue, runner, files, feedback, queues};

    const BackupItem& item(const std::string& key) const { return *catalogue.find(key); }
    void putArchive(const std::string& name, const std::string& content = "zip") {
        files.texts["/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/" + name] = content;
    }
    void putEveryArchive() {
        for (const BackupItem& item : catalogue)
            for (const std::string& path : item.archivePaths)
                files.texts[path] = "zip";
    }
};

}  // namespace tarnwick::testing
