// For --dry-run: prints what a run would do.
#pragma once

#include "cli/Output.h"
#include "core/CommandRunner.h"
#include "core/FileManager.h"

namespace tarnwick {

class RehearsalRunner : public CommandRunner {
public:
    explicit RehearsalRunner(Output& output) : output_(output) {}
    int run(const std::string& line) override;

private:
    Output& output_;
};

class RehearsalFileWriter : public FileWriter {
public:
    explicit RehearsalFileWriter(Output& output) : output_(output) {}
    bool remove(std::string_view path) override;
    bool copy(std::string_view from, std::string_view to) override;
    bool createDirectory(std::string_view path) override;
    bool createFile(std::string_view path) override;
    bool writeText(std::string_view path, std::string_view text) override;

private:
    bool report(const std::string& change, std::string_view path);

    Output& output_;
};

}  // namespace tarnwick
