#include "cli/Words.h"

#include <algorithm>

namespace tarnwick {

namespace {

// Of the C locale: keys are plain ASCII.
bool isCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

}  // namespace

std::string kebabCase(const std::string& key) {
    std::string word;
    for (const char character : key) {
        if (isCapital(character) && !word.empty())
            word += '-';
        word += isCapital(character) ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return word;
}

std::vector<std::string> itemWords(const ItemCatalogue& catalogue) {
    std::vector<std::string> words;
    for (const BackupItem& item : catalogue)
        words.push_back(kebabCase(item.key));
    return words;
}

const BackupItem* itemOfWord(const ItemCatalogue& catalogue, const std::string& word) {
    const auto found =
        std::find_if(catalogue.begin(), catalogue.end(),
                     [&word](const BackupItem& item) { return kebabCase(item.key) == word; });
    return found == catalogue.end() ? nullptr : &*found;
}

}  // namespace tarnwick
