#pragma once

#include <string>

namespace tarnwick::testing {

// An empty folder for one test; gone with it. Names are paths below it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::string& path() const { return path_; }
    // The content of a file; "(none)" if there is none.
    std::string content(const std::string& name) const;
    // Makes the folders between as well.
    void put(const std::string& name, const std::string& content) const;
    void clear() const;
    // An archive for each item, and the folders that they are in.
    void putEveryArchive(const std::string& content = emptyArchive()) const;
    static std::string emptyArchive() { return "PK\5\6" + std::string(18, '\0'); }

private:
    std::string path_;
};

}  // namespace tarnwick::testing
