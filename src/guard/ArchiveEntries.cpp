#include "guard/ArchiveEntries.h"

#include <zip.h>

#include <memory>
#include <string_view>

#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
};

std::string textOfError(int code) {
    zip_error_t error = {};
    zip_error_init_with_code(&error, code);
    std::string text = zip_error_strerror(&error);
    zip_error_fini(&error);
    return text;
}

}  // namespace

std::optional<std::string> faultOfEntries(const std::string& path) {
    int error = 0;
    const std::unique_ptr<zip_t, Discard> archive(zip_open(path.c_str(), ZIP_RDONLY, &error));
    if (!archive)
        return error == ZIP_ER_NOENT ? std::nullopt : std::optional(textOfError(error));
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t index = 0; index < count; ++index) {
        const char* const found =
            zip_get_name(archive.get(), static_cast<zip_uint64_t>(index), ZIP_FL_ENC_RAW);
        const std::string name = found != nullptr ? found : "";
        if (!name.starts_with(paths::archivedTree))
            return "no save has put \"" + name + "\" into it";
    }
    return std::nullopt;
}

}  // namespace tarnwick
