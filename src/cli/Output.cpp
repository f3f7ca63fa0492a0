#include "cli/Output.h"

#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace tarnwick {

namespace {

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR)
            return;
        if (count > 0)
            text.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::string red(const std::string& text) {
    return "\033[31m" + text + "\033[0m";
}

}  // namespace

Output::Output(const Streams& streams, Format format, Colour colour)
    : streams_(streams), format_(format), colour_(colour) {}

void Output::result(const std::string& text, const JsonFields& fields) {
    writeAll(streams_.results, (format_ == Format::Json ? jsonObject(fields) : text) + "\n");
}

void Output::problem(const std::string& text, const JsonFields& fields) {
    const std::string shown = colour_ == Colour::Coloured ? red(text) : text;
    writeAll(streams_.problems, (format_ == Format::Json ? jsonObject(fields) : shown) + "\n");
}

void Output::alert(const Alert& alert) {
    const std::string text = alert.title + ": " + alert.message;
    const JsonFields fields = {{"title", alert.title}, {"message", alert.message}};
    if (alert.kind == AlertKind::Problem)
        problem(text, fields);
    else
        result(text, fields);
}

void Output::complaint(const std::string& text) {
    writeAll(streams_.problems, "tarnwick: " + text + "\n");
}

void Output::prompt(const std::string& text) {
    writeAll(streams_.problems, text);
}

}  // namespace tarnwick
