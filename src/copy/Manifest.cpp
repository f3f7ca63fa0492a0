#include "copy/Manifest.h"

#include <sys/utsname.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "copy/Digest.h"

namespace tarnwick {

namespace {

using Json = nlohmann::json;

constexpr int format = 1;
constexpr std::uint64_t largestFile = std::uint64_t(1) << 50;  // bytes

std::string isoDate(std::time_t time) {
    std::tm fields = {};
    char text[32];
    ::gmtime_r(&time, &fields);
    return std::string(text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &fields));
}

Json jsonOf(const Manifest& manifest) {
    Json files = Json::array();
    for (const CopiedFile& file : manifest.files)
        files.push_back({{"name", file.name},
                         {"size", file.size},
                         {"modified", file.modified},
                         {"sha256", file.digest}});
    return {
        {"format", format},          {"made", manifest.made},        {"device", manifest.device},
        {"system", manifest.system}, {"tarnwick", manifest.program}, {"files", files}};
}

// The members in the order of their names, whatever it was in the text.
std::string canonicalText(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace);
}

CopiedFile fileFrom(const Json& json) {
    return {.name = json.at("name").get<std::string>(),
            .size = json.at("size").get<std::uint64_t>(),
            .modified = json.at("modified").get<std::time_t>(),
            .digest = json.at("sha256").get<std::string>()};
}

// Throws what the library throws at members that are missing or of another type.
Manifest manifestFrom(const Json& json) {
    Manifest manifest = {.made = json.at("made").get<std::string>(),
                         .device = json.at("device").get<std::string>(),
                         .system = json.at("system").get<std::string>(),
                         .program = json.at("tarnwick").get<std::string>()};
    for (const Json& file : json.at("files"))
        manifest.files.push_back(fileFrom(file));
    return manifest;
}

std::string faultOf(const std::vector<CopiedFile>& files, const std::vector<std::string>& names) {
    std::set<std::string> seen;
    for (const CopiedFile& file : files) {
        if (std::ranges::find(names, file.name) == names.end())
            return "no safeguard folder has a file \"" + file.name + "\"";
        if (!seen.insert(file.name).second)
            return file.name + " is in it twice";
        if (file.size > largestFile)
            return file.name + " has an impossible size";
    }
    return {};
}

// Without what is nested deeper than a manifest, as to write that down again could take any depth
// of the stack.
Json parsed(const std::string& text) {
    constexpr int deepest = 3;
    return Json::parse(
        text, [](int depth, Json::parse_event_t, const Json&) { return depth <= deepest; });
}

std::variant<Manifest, std::string> manifestFromText(const std::string& text,
                                                     const std::vector<std::string>& names) {
    Json json = parsed(text);
    if (const int found = json.at("format").get<int>(); found != format)
        return "it has format " + std::to_string(found) + ", which this version does not know";
    const std::string digest = json.at("sha256").get<std::string>();
    json.erase("sha256");
    if (digestOf(canonicalText(json)) != digest)
        return "its manifest was altered";
    Manifest manifest = manifestFrom(json);
    const std::string fault = faultOf(manifest.files, names);
    return fault.empty() ? std::variant<Manifest, std::string>(std::move(manifest)) : fault;
}

}  // namespace

std::uint64_t Manifest::size() const {
    std::uint64_t bytes = 0;
    for (const CopiedFile& file : files)
        bytes += file.size;
    return bytes;
}

Manifest newManifest(const std::string& program) {
    struct utsname system = {};
    ::uname(&system);
    return {.made = isoDate(std::time(nullptr)),
            .device = system.machine,
            .system = std::string(system.sysname) + " " + system.release,
            .program = program};
}

std::string textOf(const Manifest& manifest) {
    Json json = jsonOf(manifest);
    json["sha256"] = digestOf(canonicalText(json));
    constexpr int indentation = 2;
    return json.dump(indentation, ' ', true, Json::error_handler_t::replace) + "\n";
}

std::variant<Manifest, std::string> manifestIn(const std::string& text,
                                               const std::vector<std::string>& names) {
    try {
        return manifestFromText(text, names);
    } catch (const Json::exception&) {
        return "its manifest cannot be read";
    }
}

}  // namespace tarnwick
