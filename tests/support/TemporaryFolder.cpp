#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/ItemCatalogue.h"
#include "core/SafeguardPaths.h"

namespace tarnwick::testing {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "tarnwick-test-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::content(const std::string& name) const {
    std::ifstream file(path_ + "/" + name);
    if (!file)
        return "(none)";
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void TemporaryFolder::put(const std::string& name, const std::string& content) const {
    fs::create_directories(fs::path(path_ + "/" + name).parent_path());
    std::ofstream(path_ + "/" + name) << content;
}

void TemporaryFolder::clear() const {
    fs::remove_all(path_);
    fs::create_directory(path_);
}

void TemporaryFolder::putEveryArchive(const std::string& content) const {
    for (const std::string_view folder : paths::safeguardFolders)
        fs::create_directories(path_ + std::string(folder));
    for (const BackupItem& item : ItemCatalogue())
        for (const std::string& archive : item.archivePaths())
            put(archive, content);
}

}  // namespace tarnwick::testing
