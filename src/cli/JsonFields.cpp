#include "cli/JsonFields.h"

namespace tarnwick {

const std::vector<std::pair<std::string, std::string>>& jsonFieldTable() {
    static const std::vector<std::pair<std::string, std::string>> fields = {
        {"item", "the word of an item, or sources or packages"},
        {"outcome",
         "saved, nothing to save or failed, after a save; restored, no backup, not restored or "
         "failed, after a restore"},
        {"reason", "why it failed or was not restored: the last line of the command that failed"},
        {"bytes", "a size in bytes: of what was saved, of a file, or of a backup"},
        {"title", "of an alert, as the window shows it"},
        {"message", "of an alert"},
        {"offer", "what an alert offers: respring or reboot"},
        {"problem", "what is missing or has failed, on standard error"},
        {"question", "what needs a confirmation"},
        {"again", "the command to run again after a run that was cut off"},
        {"file", "below the safeguard folder"},
        {"modified", "a date and time in UTC, as in ISO 8601"},
        {"link", "broken, of a link that leads nowhere"},
        {"files", "the number of files in the safeguard folder"},
        {"notSaved", "the words of what is not in the safeguard folder, as a list"},
        {"totalBytes", "of all files or sizes, or of the file system"},
        {"freeBytes", "of the file system"},
        {"neededBytes", "what a run may take, if that is more than there is"},
        {"archive", "the name of an archive"},
        {"verdict", "good, missing, damaged or cannot be tested"},
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
