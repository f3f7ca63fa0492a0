#pragma once

#include <QString>
#include <ctime>
#include <map>

#include "core/FileManager.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// Such as "23 Nov 2026". Any thread.
QString dateText(std::time_t time);

// What to say of each thing that can be saved, by the end of the names of its actions ("Notes",
// "Sources", "AllInOne"): when it was saved last and how large that is, such as "23 Nov 2026, 145
// MB". Any thread.
std::map<QString, QString> savedTexts(const ItemCatalogue& catalogue, const FileReader& files);

}  // namespace tarnwick
