#include <csignal>
#include <cstdlib>
#include <exception>

#include "core/CommandEnvironment.h"
#include "zip/ArchiveUpdate.h"
#include "zip/SystemZip.h"

using namespace tarnwick;

namespace {

// Options that the system's zip would take from there.
bool hasOptionsInEnvironment() {
    return std::getenv("ZIP") != nullptr || std::getenv("ZIPOPT") != nullptr;
}

int update(const ZipRequest& request) {
    // What cannot be written is an error like others.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    ZipReport report(request.isQuiet);
    try {
        return static_cast<int>(updateArchive(request, report));
    } catch (const std::exception& exception) {
        report.fail(exception.what(), request.archive);
        return static_cast<int>(ZipStatus::OutOfMemory);
    }
}

}  // namespace

int main(int count, char** values) {
    fillStandardDescriptors();
    const auto request = parseZipRequest({values + (count > 0 ? 1 : 0), values + count});
    if (!request || hasOptionsInEnvironment())
        return becomeSystemZip(values);
    return update(*request);
}
