#include "screens/SavedTexts.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <optional>
#include <vector>

#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

constexpr std::uint64_t bytesInMegabyte = 1024 * 1024;

struct Saved {
    std::uint64_t bytes = 0;
    std::time_t time = 0;
};

std::optional<Saved> savedFile(const FileReader& files, const std::string& path) {
    if (const auto time = files.modificationTime(path))
        return Saved{.bytes = files.fileSize(path), .time = *time};
    return std::nullopt;
}

// Null unless all of them are there. A whole is as old as its oldest part.
std::optional<Saved> savedItem(const FileReader& files, const BackupItem& item) {
    std::optional<Saved> whole;
    for (const std::string& path : item.archivePaths()) {
        const auto part = savedFile(files, path);
        if (!part)
            return std::nullopt;
        whole = whole ? Saved{whole->bytes + part->bytes, std::min(whole->time, part->time)} : part;
    }
    return whole;
}

// Each save of the sources writes one of two lists.
std::optional<Saved> savedSources(const FileReader& files) {
    const auto merged = savedFile(files, std::string(paths::savedSourcesList));
    const auto own = savedFile(files, std::string(paths::savedCydiaList));
    if (!merged || !own)
        return merged ? merged : own;
    return merged->time < own->time ? own : merged;
}

QString sizeText(std::uint64_t bytes) {
    const bool isShort = bytes < 10 * bytesInMegabyte && bytes >= bytesInMegabyte;
    return QLocale::c()
        .formattedDataSize(static_cast<qint64>(bytes), isShort ? 1 : 0,
                           QLocale::DataSizeTraditionalFormat)
        .replace("kB", "KB");
}

QString textOf(const std::optional<Saved>& saved) {
    return saved ? dateText(saved->time) + ", " + sizeText(saved->bytes) : "not saved yet";
}

QString textOfAll(const std::vector<std::optional<Saved>>& items) {
    std::uint64_t bytes = 0;
    std::size_t number = 0;
    for (const auto& item : items) {
        bytes += item ? item->bytes : 0;
        number += item ? 1 : 0;
    }
    if (number == 0)
        return "nothing saved yet";
    return QString("%1 of %2, %3").arg(number).arg(items.size()).arg(sizeText(bytes));
}

}  // namespace

QString dateText(std::time_t time) {
    return QLocale::c().toString(QDateTime::fromSecsSinceEpoch(time).date(), "d MMM yyyy");
}

std::map<QString, QString> savedTexts(const ItemCatalogue& catalogue, const FileReader& files) {
    std::map<QString, QString> texts = {
        {"Sources", textOf(savedSources(files))},
        {"Packages", textOf(savedFile(files, std::string(paths::savedPackages)))}};
    std::vector<std::optional<Saved>> items;
    for (const BackupItem& item : catalogue) {
        items.push_back(savedItem(files, item));
        texts[QString::fromStdString(item.key)] = textOf(items.back());
    }
    texts["AllInOne"] = textOfAll(items);
    return texts;
}

}  // namespace tarnwick
