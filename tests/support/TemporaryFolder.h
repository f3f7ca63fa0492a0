#pragma once

#include <string>

namespace tarnwick::testing {

// An empty folder for one test; gone with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::string& path() const { return path_; }
    // The content of a file below; "(none)" if there is none.
    std::string content(const std::string& name) const;
    void put(const std::string& name, const std::string& content) const;

private:
    std::string path_;
};

}  // namespace tarnwick::testing
