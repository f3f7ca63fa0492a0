#include "core/SystemLog.h"

#include <syslog.h>
#include <unistd.h>

namespace tarnwick {

SystemLog::SystemLog() {
    const int echo = ::isatty(STDERR_FILENO) == 1 ? LOG_PERROR : 0;
    ::openlog(nullptr, LOG_PID | echo, LOG_USER);
}

SystemLog::~SystemLog() {
    ::closelog();
}

void SystemLog::write(std::string_view line) {
    ::syslog(LOG_NOTICE, "%.*s", static_cast<int>(line.size()), line.data());
}

}  // namespace tarnwick
