#pragma once

#include <map>
#include <string>

#include "support/Diary.h"

namespace tarnwick::testing {

// The table of literal events: from a scene, such as "save notes, nothing zipped", to what it does.
// The scenes of items and of all items in one are put together from the items' sections.
std::map<std::string, Entries> literalEvents();
// The alerts that ask before anything is done.
Entries literalQuestions();

// Sets the scene of "restore notes, nothing saved": which files are there, and whether zip works,
// follows from the verb and the words after the comma.
void setScene(const std::string& scene, const TemporaryFolder& folder, RecordingRunner& runner);

// How a person brings the scene about: an action by its name, then a button of each alert that
// asks.
struct Steps {
    std::string action;
    std::vector<int> answers;
};
Steps stepsOf(const std::string& scene);

}  // namespace tarnwick::testing
