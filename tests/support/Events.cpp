#include "support/Events.h"

#include <algorithm>
#include <fstream>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "support/Operations.h"

namespace tarnwick::testing {

namespace {

using Table = std::map<std::string, Entries>;

constexpr const char* questionsSection = "questions";

struct Section {
    std::string name;
    Entries lines;
};

// A line feed within a text stands as "\n" in the table.
std::string withLineFeeds(std::string line) {
    for (auto found = line.find("\\n"); found != std::string::npos; found = line.find("\\n"))
        line.replace(found, 2, "\n");
    return line;
}

std::vector<Section> readSections() {
    std::vector<Section> sections;
    std::ifstream file(TARNWICK_EVENTS_FILE);
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[')
            sections.push_back({line.substr(1, line.size() - 2), {}});
        else
            sections.back().lines.push_back(withLineFeeds(line));
    }
    return sections;
}

Entries operator+(Entries entries, const Entries& more) {
    entries.insert(entries.end(), more.begin(), more.end());
    return entries;
}

std::string wordAfter(const std::string& line, std::string_view start) {
    return line.substr(start.size(), line.find(' ', start.size()) - start.size());
}

// One data set, by the parts of its section.
struct Item {
    std::string word;
    Entries stop;
    Entries changes;
    Entries tests;  // for each archive, in their order
    Entries alert;
    Entries size;
    Entries otherwise;
};

void addLine(Item& item, const std::string& line) {
    if (line.starts_with("run: killall "))
        item.stop.push_back(line);
    else if (line.starts_with("alert: "))
        item.alert.push_back(line);
    else if (line.starts_with("otherwise: "))
        item.otherwise.push_back("alert: " + line.substr(11));
    else if (line.starts_with("size: "))
        item.size.push_back("alert: " + line.substr(6));
    else
        item.changes.push_back(line);
    for (const std::string_view program : {"run: zip -r ", "run: /usr/bin/unzip "})
        if (line.starts_with(program)) {
            const std::string archive = wordAfter(line, program);
            item.tests.push_back("exists: " + library + archive.substr(archive.rfind('/') + 1));
        }
}

std::vector<Item> itemsOf(const std::string& verb, const std::vector<Section>& sections) {
    std::vector<Item> items;
    for (const Section& section : sections) {
        if (!section.name.starts_with(verb + " ") || section.lines.front().starts_with("hud: "))
            continue;
        Item& item = items.emplace_back(Item{.word = section.name.substr(verb.size() + 1)});
        for (const std::string& line : section.lines)
            addLine(item, line);
    }
    return items;
}

Entries task(const std::string& hud, const Entries& work, const Entries& end) {
    return Entries{hud, "background thread"} + work + Entries{"main thread, waiting", "hide"} + end;
}

// All in one writes one copy command in another way.
Entries asInAllInOne(Entries changes, const std::string& line) {
    const std::string copy = line.substr(0, line.rfind(' ') + 1);
    for (std::string& change : changes)
        if (change.starts_with(copy))
            change = line;
    return changes;
}

void addSaves(Table& table, const std::vector<Item>& items, const Entries& rules) {
    const std::string& hud = rules.at(0);
    Entries changes;
    Entries tests;
    Entries failures;
    for (const Item& item : items) {
        changes = changes + asInAllInOne(item.changes, rules.at(1));
        tests = tests + item.tests;
        for (std::size_t place = 0; place < item.tests.size(); ++place)
            failures = failures + Entries{item.tests[place], item.otherwise.at(place)};
        table["save " + item.word] = task(hud, item.changes, item.tests + item.alert);
        table["save " + item.word + ", nothing zipped"] =
            task(hud, item.changes, {item.tests.at(0), item.otherwise.at(0)});
    }
    table["save all"] = task(hud, changes + tests, {rules.at(2)});
    table["save all, nothing zipped"] = task(hud, changes + failures, {rules.at(2)});
}

void addRestores(Table& table, const std::vector<Item>& items, const Entries& rules) {
    const std::string& hud = rules.at(0);
    Entries work;
    Entries tests;
    for (const Item& item : items) {
        const Entries test = {item.tests.at(0)};
        work = work + test + item.stop + item.changes;
        tests = tests + test;
        table["restore " + item.word] = task(hud, item.stop + test + item.changes, item.alert);
        table["restore " + item.word + ", nothing saved"] =
            task(hud, item.stop + test, item.otherwise);
    }
    table["restore all"] = task(hud, work, {rules.at(1)});
    table["restore all, nothing saved"] = task(hud, tests, {rules.at(1)});
}

bool isLine(const std::string& change) {
    return change.starts_with("run: ");
}

// What is done in the folder of archives, done in the one for temporary files.
Entries inTemporaryFolder(Entries changes) {
    for (std::string& change : changes)
        for (auto at = change.find(library); at != std::string::npos; at = change.find(library))
            change.replace(at, library.size(), "/var/tmp/");
    return changes;
}

Entries removalsOf(const Entries& archiveTests) {
    Entries removals;
    for (const std::string& test : archiveTests)
        removals.push_back("remove: " + test.substr(std::string("exists: ").size()));
    return removals;
}

void addSizes(Table& table, const std::vector<Item>& items, const Entries& hud,
              const std::string& copyInAllInOne) {
    for (const Item& item : items) {
        const Entries start = hud + Entries{item.tests.at(0)};
        const Entries changes = inTemporaryFolder(asInAllInOne(item.changes, copyInAllInOne));
        const auto lines = std::ranges::find_if_not(changes, isLine);
        table["size " + item.word] = start + Entries(changes.begin(), lines) + item.size +
                                     Entries(lines, changes.end()) + Entries{"hide"} +
                                     inTemporaryFolder(removalsOf(item.tests));
        table["size " + item.word + ", saved"] = start + item.size + Entries{"hide"};
    }
}

}  // namespace

std::map<std::string, Entries> literalEvents() {
    const std::vector<Section> sections = readSections();
    Table table;
    for (const Section& section : sections)
        table[section.name] = section.lines;
    const auto rules = [&table](const char* name) { return table.extract(name).mapped(); };
    const std::vector<Item> items = itemsOf("save", sections);
    const Entries saveRules = rules("save, all in one");
    addSaves(table, items, saveRules);
    addSizes(table, items, rules("size, every item"), saveRules.at(1));
    addRestores(table, itemsOf("restore", sections), rules("restore, all in one"));
    table.erase(questionsSection);
    return table;
}

Entries literalQuestions() {
    const std::vector<Section> sections = readSections();
    return std::ranges::find(sections, questionsSection, &Section::name)->lines;
}

void setScene(const std::string& scene, const TemporaryFolder& folder, RecordingRunner& runner) {
    const bool isPlain = scene.find(',') == std::string::npos;
    if (scene.ends_with(", saved") || (isPlain && scene.starts_with("restore")))
        folder.putEveryArchive("zip");
    if (!isPlain)
        return;
    folder.put(ownList, "deb");
    folder.put(savedPackages, "");
    runner.act = [&folder](const std::string& line) {
        if (line.starts_with("zip -r "))
            folder.put(wordAfter(line, "zip -r "), "zip");
    };
}

Steps stepsOf(const std::string& scene) {
    const std::string phrase = scene.substr(0, scene.find(','));
    const std::string verb = phrase.substr(0, phrase.find(' '));
    const std::string word = phrase == verb ? "" : phrase.substr(verb.size() + 1);
    const ItemCatalogue catalogue;
    const auto buttonOf = [&word](const std::vector<std::string>& words) {
        return static_cast<int>(std::ranges::find(words, word) - words.begin()) + 1;
    };
    if (phrase == "restore all")
        return {"restoreAllInOne", {1}};
    if (verb == "save" || verb == "restore")
        return {actionName(verb, word, catalogue), {}};
    if (verb == "size")
        return {"backupSize", {buttonOf(itemWords(catalogue))}};
    if (verb == "folders" && !word.empty())
        return {"recreateApplicationFolders", {2, buttonOf(folderWords())}};
    const std::map<std::string, std::string> actions = {
        {"folders", "recreateApplicationFolders"},
        {"remove backups", "removeSafeguard"},
        {"remove sources-list", "removeSourcesList"},
        {"respring", "respring"},
        {"reboot", "reboot"}};
    return {actions.at(phrase), {1}};
}

}  // namespace tarnwick::testing
