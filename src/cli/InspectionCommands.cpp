#include <algorithm>
#include <ctime>

#include "cli/Commands.h"
#include "cli/QuotedName.h"
#include "cli/SafeguardState.h"
#include "cli/SavedThings.h"
#include "cli/Words.h"
#include "core/JoinedText.h"
#include "core/SafeguardPaths.h"
#include "help/HelpTexts.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

std::string formattedTime(std::time_t time, const char* format,
                          std::tm* (*fields)(const std::time_t*, std::tm*)) {
    std::tm parts = {};
    char text[32];
    fields(&time, &parts);
    return std::string(text, std::strftime(text, sizeof text, format, &parts));
}

std::string sizeText(std::int64_t bytes) {
    return memoryFormatterDouble(static_cast<double>(bytes));
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

constexpr std::size_t sizeWidth = 12;
constexpr std::size_t dateWidth = 16;

// The word of what the file is a copy of; empty if it is of nothing.
std::string wordOfCopy(const std::vector<SavedThing>& things, const std::string& path) {
    const auto found = std::ranges::find_if(things, [&path](const SavedThing& thing) {
        return std::ranges::count(thing.copies, path) > 0;
    });
    return found == things.end() ? std::string() : found->word;
}

// Files and their bytes.
struct Total {
    std::int64_t files = 0;
    std::int64_t bytes = 0;
};

void showBrokenLink(Session& session, const std::string& shown) {
    session.output().result(std::string(dateWidth, ' ') + "  " +
                                rightAligned("broken link", sizeWidth) + "  " + quotedName(shown),
                            {{"file", shown}, {"link", "broken"}});
}

void showFile(Session& session, const std::vector<SavedThing>& things, const std::string& path,
              const std::string& shown) {
    const auto size = static_cast<std::int64_t>(session.files().fileSize(path));
    const auto modified = session.files().modificationTime(path).value_or(0);
    JsonFields fields = {{"file", shown},
                         {"bytes", size},
                         {"modified", formattedTime(modified, "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r)}};
    if (const std::string word = wordOfCopy(things, path); !word.empty())
        fields.emplace_back("item", word);
    session.output().result(formattedTime(modified, "%Y-%m-%d %H:%M", ::localtime_r) + "  " +
                                rightAligned(sizeText(size), sizeWidth) + "  " + quotedName(shown),
                            fields);
}

void listFolder(Session& session, const std::vector<SavedThing>& things, const std::string& folder,
                Total& total) {
    auto names = session.files().list(folder).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        const std::string path = folder + "/" + name;
        const std::string shown = paths::nameOf(folder) + "/" + name;
        ++total.files;
        total.bytes += static_cast<std::int64_t>(session.files().fileSize(path));
        if (session.files().exists(path))
            showFile(session, things, path, shown);
        else
            showBrokenLink(session, shown);
    }
}

void showTotal(Session& session, const std::vector<SavedThing>& things, const Total& total) {
    std::vector<std::string> missing;
    for (const SavedThing& thing : things)
        if (!hasEveryCopy(session.files(), thing))
            missing.push_back(thing.word);
    std::string text = "The safeguard folder is empty.";
    if (total.files > 0) {
        text = rightAligned(sizeText(total.bytes), dateWidth + 2 + sizeWidth) + "  in all";
        if (!missing.empty())
            text += "\nNot saved: " + joined(missing, ", ");
    }
    session.output().result(
        text, {{"files", total.files}, {"totalBytes", total.bytes}, {"notSaved", missing}});
}

}  // namespace

ExitStatus listSafeguard(Session& session, const std::vector<std::string>&) {
    const bool readable = isReadable(session);
    const auto things =
        savedThings(session.files(), session.catalogue(), {sourcesWord, packagesWord, everyItem});
    Total total;
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        listFolder(session, things, std::string(folder), total);
    if (!readable)
        return unreadable(session);
    showTotal(session, things, total);
    return AllDone;
}

ExitStatus showStorage(Session& session, const std::vector<std::string>&) {
    session.options().readStorageFigures([&session](const std::string& total,
                                                    const std::string& free) {
        const FileReader& files = session.files();
        session.output().result("Total: " + total + "\nFree: " + free,
                                {{"totalBytes", files.fileSystemSize(paths::userPartition)},
                                 {"freeBytes", files.fileSystemFreeSize(paths::userPartition)}});
    });
    return AllDone;
}

ExitStatus showHelpTexts(Session& session, const std::vector<std::string>&) {
    bool first = true;
    for (const HelpText& text : helpTexts()) {
        session.output().result((first || session.arguments().json ? "" : "\n") + text.text,
                                {{"name", text.label}, {"text", text.text}});
        first = false;
    }
    return AllDone;
}

}  // namespace tarnwick
