#include "cli/Words.h"

#include <algorithm>

#include "core/Characters.h"
#include "core/JoinedText.h"

namespace tarnwick {

namespace {

struct Target {
    std::string word;
    std::string name;  // as a part of an action's name
};

std::vector<Target> targetsOf(const ItemCatalogue& catalogue) {
    std::vector<Target> targets = {
        {sourcesWord, "Sources"}, {packagesWord, "Packages"}, {everyItem, "AllInOne"}};
    for (const BackupItem& item : catalogue)
        targets.push_back({kebabCase(item.key), item.key});
    return targets;
}

}  // namespace

std::string kebabCase(const std::string& key) {
    return wordsOfCamelCase(key, '-');
}

std::vector<std::string> itemWords(const ItemCatalogue& catalogue) {
    std::vector<std::string> words;
    for (const BackupItem& item : catalogue)
        words.push_back(kebabCase(item.key));
    return words;
}

const BackupItem* itemOfWord(const ItemCatalogue& catalogue, const std::string& word) {
    const auto found = std::ranges::find_if(
        catalogue, [&word](const BackupItem& item) { return kebabCase(item.key) == word; });
    return found == catalogue.end() ? nullptr : &*found;
}

std::vector<std::string> targetWords(const ItemCatalogue& catalogue) {
    std::vector<std::string> words;
    for (const Target& target : targetsOf(catalogue))
        words.push_back(target.word);
    return words;
}

std::string actionName(const std::string& verb, const std::string& target,
                       const ItemCatalogue& catalogue) {
    const auto targets = targetsOf(catalogue);
    return verb + std::ranges::find(targets, target, &Target::word)->name;
}

std::string someOf(std::vector<std::string> names) {
    constexpr std::size_t mostNames = 10;
    if (names.size() > mostNames) {
        const std::size_t more = names.size() - mostNames;
        names.resize(mostNames);
        names.push_back(std::to_string(more) + " more");
    }
    return joined(names, ", ");
}

}  // namespace tarnwick
