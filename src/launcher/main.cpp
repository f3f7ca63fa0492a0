// Starts the window program with root's rights, whoever the caller is.
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "launcher/CallersFiles.h"
#include "launcher/CleanStart.h"

using namespace tarnwick;

namespace {

// The name that killall looks for.
const char program[] = TARNWICK_PROGRAM;
const char programName[] = "RootTarnwick2";

std::vector<std::string> ownEnvironment() {
    std::vector<std::string> environment;
    for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable)
        environment.emplace_back(*variable);
    return environment;
}

std::vector<std::string> linesOf(const Environment& environment) {
    std::vector<std::string> lines;
    for (const auto& [name, value] : environment)
        lines.push_back(std::string(name).append("=").append(value));
    return lines;
}

// The form that exec takes. The texts must outlive it.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

int main(int count, char** values) {
    std::vector<std::string> environment = ownEnvironment();
    // A caller who is root already may set anything.
    if (::getuid() != ::geteuid()) {
        Environment clean = cleanEnvironment(environment);
        cleanProcess();
        replaceCallersFiles(clean);
        environment = linesOf(clean);
    }
    std::vector<std::string> words = {values + std::min(count, 1), values + count};
    words.insert(words.begin(), programName);
    ::execve(program, pointersTo(words).data(), pointersTo(environment).data());
    std::perror(program);
    return 127;
}
