#pragma once

#include "cli/Output.h"
#include "cli/Streams.h"
#include "core/Alert.h"

namespace tarnwick {

// Asks what the window would ask, where there is a terminal to ask on.
class Questions {
public:
    Questions(const Streams& streams, Output& output);

    bool canAsk() const;
    // Shows the question and reads a line: "y" or "yes", in capitals too, presses the first other
    // button. Anything else, end of file included, is a no.
    bool confirm(const Alert& alert);
    bool confirm(const std::string& button);
    // Reads a line; empty at end of file.
    std::string ask(const std::string& question);

private:
    Streams streams_;
    Output& output_;
};

}  // namespace tarnwick
