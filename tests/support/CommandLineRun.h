#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/CommandLine.h"
#include "support/Diary.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::testing {

// The command on recording seams, with files for its two outputs and no terminal.
class CommandLineRun {
public:
    CommandLineRun();
    CommandLineRun(const CommandLineRun&) = delete;
    CommandLineRun& operator=(const CommandLineRun&) = delete;
    ~CommandLineRun();

    // Runs the words, split at blanks. The outputs hold what this call wrote.
    int operator()(const std::string& words);

    std::string results() const;
    std::string problems() const;

    TemporaryFolder folder;
    Diary diary;
    RecordingRunner runner{diary};
    RecordingFileManager files{diary, folder};
    Guard guard{ItemCatalogue(), runner, files, [](const std::string&) {}, folder.path()};
    bool isRoot = true;
    std::string lockPath = folder.path() + "/lock";
    std::string logPath = folder.path() + "/log";
    std::string mailerProgram = folder.path() + "/sendmail";
    // Stands for the input and for what is shown of problems and questions, if there is one.
    std::optional<int> terminal;
    std::optional<int> input;  // read instead
    // How supervised work ends; by default it runs in place.
    SupervisedRun::End end = SupervisedRun::End::Finished;
    bool isHungUp = false;

private:
    int input_;
    int results_;
    int problems_;
};

}  // namespace tarnwick::testing
