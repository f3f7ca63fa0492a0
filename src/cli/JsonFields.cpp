#include "cli/JsonFields.h"

namespace tarnwick {

const std::vector<std::pair<std::string, std::string>>& jsonFieldTable() {
    static const std::vector<std::pair<std::string, std::string>> fields = {
        {"item", "the word of an item, or sources or packages"},
        {"outcome",
         "saved, nothing to save or failed, after a save; restored, no backup, not restored or "
         "failed, after a restore"},
        {"reason", "why it failed or was not restored: the last line of the command that failed"},
        {"bytes", "a size in bytes: of what was saved, of a file, of a backup, or of a copy"},
        {"title", "of an alert, as the window shows it"},
        {"message", "of an alert"},
        {"offer", "what an alert offers: respring or reboot"},
        {"problem", "what is missing or has failed, on standard error"},
        {"question", "what needs a confirmation"},
        {"again", "the command to run: again, after a run that was cut off, or before a wipe"},
        {"file", "below the safeguard folder"},
        {"modified", "a date and time in UTC, as in ISO 8601"},
        {"link", "broken, of a link that leads nowhere"},
        {"files", "the number of files in the safeguard folder, or in a copy"},
        {"notSaved", "the words of what is not in the safeguard folder, as a list"},
        {"totalBytes", "of all files or sizes, or of the file system"},
        {"freeBytes", "of the file system"},
        {"neededBytes", "what a run may take, if that is more than there is"},
        {"archive", "the name of an archive"},
        {"verdict",
         "of an archive, good, missing, damaged or cannot be tested; of an item or a list also "
         "saved, nothing to save, out of date or unreadable; of all, ready or not ready"},
        {"path", "of a file on the device; that of a folder ends with a slash"},
        {"kind", "file or folder"},
        {"archivedBytes", "the size of the file in the archive"},
        {"state", "same, changed, not saved, only in the archive or unreadable"},
        {"effect",
         "of a restore on the file: stays, would be overwritten, would come back, or no restore "
         "changes it"},
        {"sameFiles", "the number of files that are the same on the device and in the archive"},
        {"changedFiles", "the number of those that have changed since the save"},
        {"unsavedFiles", "the number of those that are only on the device"},
        {"archivedFiles", "the number of those that are only in the archive"},
        {"unreadableFiles", "the number of those that cannot be compared"},
        {"made", "when a copy was made, as in ISO 8601"},
        {"device", "the model of the device that a copy was made on"},
        {"system", "the system of that device"},
        {"tarnwick", "the version that made a copy"},
        {"change", "what an import makes of the file: new, replaced, the same or not in the copy"},
        {"previous", "where the safeguard folder is that an import has replaced"},
        {"run", "a command line that would be run"},
        {"copy", "a file that would be copied"},
        {"to", "where it would be copied to"},
        {"write", "a file that would be written"},
        {"remove", "a file or folder that would be removed"},
        {"create file", "a file that would be made"},
        {"create folder", "a folder that would be made"},
        {"sent", "the addresses that a mail was sent to, as a list"},
        {"name", "of a help text"},
        {"text", "of a help text"},
        {"help", "the help"},
        {"version", "the version"},
    };
    return fields;
}

}  // namespace tarnwick
