#include "launcher/CleanStart.h"

#include <paths.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <string_view>

#include "core/Characters.h"
#include "core/CommandEnvironment.h"
#include "core/StartToken.h"

namespace tarnwick {

namespace {

constexpr std::size_t longestValue = 1024;  // bytes; real ones are far shorter

bool isNumber(std::string_view text) {
    constexpr std::size_t mostDigits = 5;
    return !text.empty() && text.size() <= mostDigits && std::ranges::all_of(text, isDigit);
}

bool isFolderOrFile(std::string_view text) {
    return text.starts_with('/') && consistsOf(text, "/._-+@:") &&
           text.find("/..") == std::string_view::npos;
}

// ":0", ":0.0", "localhost:10.0".
bool isDisplay(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return false;
    const std::string_view host = text.substr(0, colon);
    const std::string_view number = text.substr(colon + 1);
    const std::size_t dot = number.find('.');
    return (host.empty() || host == "unix" || host == "localhost") &&
           isNumber(number.substr(0, dot)) &&
           (dot == std::string_view::npos || isNumber(number.substr(dot + 1)));
}

// A socket's name in the runtime folder.
bool isWaylandDisplay(std::string_view text) {
    return consistsOf(text, "._-") && !text.starts_with('.');
}

// A socket only, as other kinds of address can start programs.
bool isBusAddress(std::string_view text) {
    constexpr std::string_view path = "unix:path=";
    constexpr std::string_view abstractName = "unix:abstract=";
    const std::size_t comma = std::min(text.find(",guid="), text.size());
    const std::string_view socket = text.substr(0, comma);
    const std::string_view guid = text.substr(comma);
    if (!guid.empty() && !consistsOf(guid.substr(guid.find('=') + 1), ""))
        return false;
    return (socket.starts_with(path) && isFolderOrFile(socket.substr(path.size()))) ||
           (socket.starts_with(abstractName) && isFolderOrFile(socket.substr(abstractName.size())));
}

bool isLanguage(std::string_view text) {
    return consistsOf(text, "._@-") && !text.starts_with('.');
}

struct Rule {
    std::string_view name;
    bool (*accepts)(std::string_view value);
};

constexpr Rule rules[] = {
    {"DISPLAY", isDisplay},
    {"XAUTHORITY", isFolderOrFile},
    {"WAYLAND_DISPLAY", isWaylandDisplay},
    {"XDG_RUNTIME_DIR", isFolderOrFile},
    {"DBUS_SESSION_BUS_ADDRESS", isBusAddress},
    {"LANG", isLanguage},
    {"LC_ALL", isLanguage},
    {"LC_CTYPE", isLanguage},
    {"XDG_ACTIVATION_TOKEN", isStartToken},
    {"DESKTOP_STARTUP_ID", isStartToken},
};

bool isAcceptable(std::string_view name, std::string_view value) {
    const auto* rule = std::ranges::find(rules, name, &Rule::name);
    return rule != std::end(rules) && value.size() <= longestValue && rule->accepts(value);
}

std::string homeOf(uid_t user) {
    const passwd* entry = ::getpwuid(user);
    return entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "/";
}

void resetSignals() {
    for (int signal = 1; signal < NSIG; ++signal)
        std::signal(signal, SIG_DFL);
    sigset_t none = {};
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

void stopTimers() {
    const itimerval never = {};
    for (const auto timer : {ITIMER_REAL, ITIMER_VIRTUAL, ITIMER_PROF})
        ::setitimer(timer, &never, nullptr);
}

struct Limit {
    decltype(RLIMIT_CPU) resource;
    rlim_t value;
};

// The usual defaults of a system.
constexpr Limit limits[] = {
    {RLIMIT_CPU, RLIM_INFINITY},
    {RLIMIT_FSIZE, RLIM_INFINITY},
    {RLIMIT_DATA, RLIM_INFINITY},
    {RLIMIT_AS, RLIM_INFINITY},
    {RLIMIT_STACK, 8U << 20U},
    {RLIMIT_NOFILE, 1024},
    {RLIMIT_CORE, 0},
};

// Without the right to raise the hard limit, as much as it allows.
void set(const Limit& limit) {
    rlimit values = {.rlim_cur = limit.value, .rlim_max = limit.value};
    if (::setrlimit(limit.resource, &values) == 0 || ::getrlimit(limit.resource, &values) != 0)
        return;
    values.rlim_cur = std::min(limit.value, values.rlim_max);
    ::setrlimit(limit.resource, &values);
}

}  // namespace

Environment cleanEnvironment(const std::vector<std::string>& environment) {
    Environment clean = {{"PATH", _PATH_STDPATH}, {"HOME", homeOf(0)}};
    for (const std::string& variable : environment) {
        const std::size_t equals = std::min(variable.find('='), variable.size());
        const std::string name = variable.substr(0, equals);
        const std::string value = equals < variable.size() ? variable.substr(equals + 1) : "";
        if (isAcceptable(name, value))
            clean.emplace(name, value);
    }
    clean.emplace("XAUTHORITY", homeOf(::getuid()) + "/.Xauthority");
    clean.emplace("LANG", "C.UTF-8");
    return clean;
}

void cleanProcess() {
    // Commands must not ask the caller: some of them offer a shell.
    ::close(STDIN_FILENO);
    fillStandardDescriptors();
    ::closefrom(STDERR_FILENO + 1);
    resetSignals();
    stopTimers();
    ::umask(S_IWGRP | S_IWOTH);
    std::ranges::for_each(limits, set);
    [[maybe_unused]] const int entered = ::chdir("/");
}

}  // namespace tarnwick
