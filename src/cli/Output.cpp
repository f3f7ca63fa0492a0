#include "cli/Output.h"

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "cli/QuotedName.h"
#include "core/TextLines.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

// False if the text was lost. Nothing is lost if nobody reads the stream any more, or if the
// terminal has gone.
bool deliver(int descriptor, std::string_view text) {
    return writeAll(descriptor, text) || errno == EPIPE || errno == EIO;
}

// What commands say may contain control characters, which a terminal must not see.
std::string printable(std::string_view text) {
    std::string shown;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = std::max<std::size_t>(characterLength(text, position), 1);
        const std::string_view character = text.substr(position, length);
        const bool shows =
            character == "\n" || (characterLength(text, position) > 0 && !isControl(character));
        shown += shows ? character : "?";
        position += length;
    }
    return shown;
}

std::string red(const std::string& text) {
    return "\033[31m" + text + "\033[0m";
}

}  // namespace

Output::Output(const Streams& streams, Format format, Colour colour)
    : streams_(streams), format_(format), colour_(colour) {}

void Output::write(int descriptor, const std::string& text) {
    if (!deliver(descriptor, text))
        lostResult_ = true;
    if (copy_ >= 0)
        writeAll(copy_, text);
}

void Output::result(const std::string& text, const JsonFields& fields) {
    const std::string shown = format_ == Format::Json ? jsonObject(fields) : printable(text);
    write(streams_.results, shown + "\n");
}

void Output::problem(const std::string& text, const JsonFields& fields) {
    const std::string shown = printable(text);
    writeProblem(colour_ == Colour::Coloured ? red(shown) : shown, fields);
}

void Output::alert(const Alert& alert, const JsonFields& facts) {
    const std::string text = alert.title + ": " + alert.message;
    JsonFields fields = {{"title", alert.title}, {"message", alert.message}};
    fields.insert(fields.end(), facts.begin(), facts.end());
    if (alert.kind == AlertKind::Problem)
        problem(text, fields);
    else
        result(text, fields);
}

void Output::complaint(const std::string& text, const JsonFields& facts) {
    JsonFields fields = {{"problem", text}};
    fields.insert(fields.end(), facts.begin(), facts.end());
    writeProblem("tarnwick: " + printable(text), fields);
}

void Output::writeProblem(const std::string& text, const JsonFields& fields) {
    write(streams_.problems, (format_ == Format::Json ? jsonObject(fields) : text) + "\n");
}

void Output::prompt(const std::string& text) {
    deliver(streams_.problems, printable(text));
}

}  // namespace tarnwick
