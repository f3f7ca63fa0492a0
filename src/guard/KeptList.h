#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tarnwick {

using FaultListener = std::function<void(const std::string& fault)>;

// The list that stood at a path, kept beside it while it is written anew.
class KeptList {
public:
    explicit KeptList(std::string path);

    // Keeps a list that is not empty, under another name as well, or only under that. Returns
    // whether it could be kept, or there was none.
    bool keep() const;
    bool moveAside() const;
    // Puts the kept list back, unless a new one has been written whole that is not empty; nothing
    // stays empty because it could not be written. Returns whether one was put back.
    bool settle(bool isWhole) const;
    // Puts back what was kept, by this run or one that was cut off; false if nothing was.
    bool recover() const;

private:
    void makeRoom() const;

    const std::string path_;
    const std::string kept_;
};

// What to say when a list was put back.
std::string textOfRecovery(std::string_view list);

}  // namespace tarnwick
