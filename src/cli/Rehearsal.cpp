#include "cli/Rehearsal.h"

namespace tarnwick {

int RehearsalRunner::run(const std::string& line) {
    output_.result("run: " + line, {{"run", line}});
    return 0;
}

bool RehearsalFileWriter::report(const std::string& change, std::string_view path) {
    output_.result(change + ": " + std::string(path), {{change, std::string(path)}});
    return true;
}

bool RehearsalFileWriter::remove(std::string_view path) {
    return report("remove", path);
}

bool RehearsalFileWriter::copy(std::string_view from, std::string_view to) {
    output_.result("copy: " + std::string(from) + " to " + std::string(to),
                   {{"copy", std::string(from)}, {"to", std::string(to)}});
    return true;
}

bool RehearsalFileWriter::createDirectory(std::string_view path) {
    return report("create folder", path);
}

bool RehearsalFileWriter::createFile(std::string_view path) {
    return report("create file", path);
}

bool RehearsalFileWriter::writeText(std::string_view path, std::string_view) {
    return report("write", path);
}

}  // namespace tarnwick
