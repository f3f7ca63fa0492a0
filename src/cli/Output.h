#pragma once

#include <string>

#include "cli/Json.h"
#include "cli/Streams.h"
#include "core/Alert.h"

namespace tarnwick {

enum class Format { Text, Json };
enum class Colour { Plain, Coloured };

// Writes lines: results to one stream, problems to the other. A stream that nobody reads any more
// does not hold up the run. One thread at a time.
class Output {
public:
    Output(const Streams& streams, Format format, Colour colour);

    // One line: the text, or the fields as an object.
    void result(const std::string& text, const JsonFields& fields);
    // Whether a result or a problem could not be written, on a full disk for example.
    bool lostResult() const { return lostResult_; }
    // Everything is written to this descriptor as well, until it is set to -1.
    void copyTo(int descriptor) { copy_ = descriptor; }
    void problem(const std::string& text, const JsonFields& fields);
    // "TITLE: MESSAGE", as a result or a problem depending on the alert's kind. An object has the
    // facts too.
    void alert(const Alert& alert, const JsonFields& facts);
    // A message of the program itself, to the stream of the problems.
    void complaint(const std::string& text, const JsonFields& facts = {});
    // Text without a line feed, for a person, to the stream of the problems.
    void prompt(const std::string& text);

private:
    void writeProblem(const std::string& text, const JsonFields& fields);
    void write(int descriptor, const std::string& text);

    Streams streams_;
    Format format_;
    Colour colour_;
    bool lostResult_ = false;
    int copy_ = -1;
};

}  // namespace tarnwick
