#include "cli/Questions.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/Characters.h"

namespace tarnwick {

namespace {

std::string readLine(int descriptor) {
    std::string line;
    char character = 0;
    for (;;) {
        const ssize_t count = ::read(descriptor, &character, 1);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0 || character == '\n')
            return line;
        line += character;
    }
}

}  // namespace

Questions::Questions(const Streams& streams, Output& output) : streams_(streams), output_(output) {}

bool Questions::canAsk() const {
    return ::isatty(streams_.input) == 1 && ::isatty(streams_.problems) == 1;
}

bool Questions::confirm(const Alert& alert) {
    output_.prompt(alert.title + ": " + alert.message + "\n");
    return confirm(alert.otherButtonTitles.front());
}

bool Questions::confirm(const std::string& button) {
    std::string answer = ask(button + " ? [y/N] ");
    std::ranges::transform(answer, answer.begin(), lowerCase);
    return answer == "y" || answer == "yes";
}

std::string Questions::ask(const std::string& question) {
    output_.prompt(question);
    return readLine(streams_.input);
}

}  // namespace tarnwick
