#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <random>

#include "copy/Digest.h"
#include "copy/IncomingFolder.h"
#include "copy/SafeguardNames.h"
#include "core/SafeguardPaths.h"
#include "core/WriteAll.h"
#include "support/CommandLineRun.h"
#include "support/Terminal.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

using Contents = std::map<std::string, std::string>;

const std::string root(paths::safeguardRoot);

std::string noise(std::size_t length) {
    std::mt19937 random(static_cast<std::mt19937::result_type>(length));
    std::string text(length, '\0');
    std::ranges::generate(text, [&] { return static_cast<char>(random()); });
    return text;
}

const Contents saved = {
    {"CydiaSources/sources.list", "deb file:/srv ./\n"},
    {"CydiaPackages/installed-packages.txt", ""},
    {"TarnwickLibrary/Notes.zip", noise(1537)},
    {"TarnwickLibrary/SMS.zip", noise(700'000)},
};

// A memory disk, where there is one: nothing waits for a real one there.
struct InMemory {
    InMemory() {
        if (fs::is_directory("/dev/shm"))
            ::setenv("TMPDIR", "/dev/shm", 1);
    }
    ~InMemory() { ::unsetenv("TMPDIR"); }
};

class Copies : public ::testing::Test, private InMemory {
protected:
    Copies() {
        put(saved);
        EXPECT_EQ(tarnwick("export copy"), NotAllDone) << "the other archives are missing";
        copy = folder.content("copy");
        fs::remove_all(folder.path() + root);
        put({{"CydiaSources/cydia.list", "older"}, {"TarnwickLibrary/Notes.zip", "older"}});
        fs::create_directories(folder.path() + "/var/mobile/Library/Notes");
        before = tree();
    }

    void put(const Contents& contents) const {
        for (const auto& [name, content] : contents)
            folder.put(root + "/" + name, content);
    }

    // Everything on the device: paths with contents, or kinds.
    Contents tree() const {
        Contents found;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path() + "/var"))
            found[entry.path().string().substr(folder.path().size())] =
                entry.is_symlink() ? "link"
                : entry.is_regular_file()
                    ? folder.content(entry.path().string().substr(folder.path().size()))
                    : "folder";
        return found;
    }

    int import(const std::string& stream) {
        folder.put("stream", stream);
        return tarnwick("import stream");
    }

    // The same without the command around it.
    CopySink::Fault importInPlace(const std::string& stream) const {
        const Descriptor file(::memfd_create("stream", MFD_CLOEXEC));
        EXPECT_TRUE(writeAll(file.number(), stream));
        ::lseek(file.number(), 0, SEEK_SET);
        IncomingFolder incoming(folder.path());
        const ReadCopy read = readCopy(file.number(), safeguardNames(ItemCatalogue()), incoming,
                                       [](std::uint64_t, std::uint64_t) {});
        return read.fault ? read.fault : incoming.putInPlace();
    }

    Contents safeguard(const std::string& place = root) const {
        Contents found;
        for (const std::string& name : safeguardNames(ItemCatalogue()))
            if (fs::exists(folder.path() + place + "/" + name))
                found[name] = folder.content(place + "/" + name);
        return found;
    }

    CommandLineRun tarnwick;
    const TemporaryFolder& folder = tarnwick.folder;
    std::string copy;
    Contents before;
};

TEST_F(Copies, ComeBackBitForBit) {
    ::umask(022);
    ASSERT_EQ(import(copy), AllDone) << tarnwick.problems();
    EXPECT_EQ(safeguard(), saved);
    EXPECT_EQ(safeguard(previousFolder), (Contents{{"CydiaSources/cydia.list", "older"},
                                                   {"TarnwickLibrary/Notes.zip", "older"}}));
    EXPECT_NE(tarnwick.results().find("cydia.list: not in the copy\n"), std::string::npos);
    struct stat status = {};
    ::stat((folder.path() + root + "/TarnwickLibrary/Notes.zip").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0644U);
    EXPECT_EQ(status.st_uid, ::geteuid());
    EXPECT_FALSE(fs::exists(folder.path() + incomingFolder));
    ASSERT_EQ(import(copy), AllDone);
    EXPECT_EQ(safeguard(previousFolder), saved) << "one generation is kept";
    fs::remove_all(folder.path() + root);
    ASSERT_EQ(import(copy), AllDone) << "on a new device";
    EXPECT_EQ(safeguard(), saved);
}

TEST_F(Copies, AreVerifiedByAnybodyAndRehearsedWithoutAChange) {
    tarnwick.isRoot = false;
    EXPECT_EQ(tarnwick("export --verify copy"), AllDone) << tarnwick.problems();
    EXPECT_TRUE(tarnwick.results().starts_with("copy: whole; 4 files, 685.")) << tarnwick.results();
    EXPECT_EQ(tarnwick("import copy --dry-run"), AllDone);
    EXPECT_EQ(tarnwick.results(),
              "CydiaSources/sources.list: new\nCydiaSources/cydia.list: not in the copy\n"
              "CydiaPackages/installed-packages.txt: new\nTarnwickLibrary/SMS.zip: new\n"
              "TarnwickLibrary/Notes.zip: replaced\n");
    EXPECT_EQ(tree(), before);
    EXPECT_EQ(tarnwick("import copy"), NotRoot);
}

TEST_F(Copies, HoldWhatIsWholeAndTheRestIsTold) {
    fs::remove(folder.path() + root + "/TarnwickLibrary/Notes.zip");
    fs::create_symlink("/etc/passwd", folder.path() + root + "/TarnwickLibrary/SMS.zip");
    folder.put(root + "/TarnwickLibrary/letters.txt", "");
    EXPECT_EQ(tarnwick("export other"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: TarnwickLibrary/letters.txt is not part of a copy\n"
              "tarnwick: Preferences.zip: missing\ntarnwick: Notes.zip: missing\n"
              "tarnwick: " +
                  root + "/TarnwickLibrary/SMS.zip cannot be read: it is a link\n");
    EXPECT_EQ(tarnwick("import other"), AllDone) << tarnwick.problems();
    EXPECT_EQ(safeguard(), (Contents{{"CydiaSources/cydia.list", "older"}}));
    put(saved);
    tarnwick.runner.status = 3 << 8;
    EXPECT_EQ(tarnwick("export - --json"), NotAllDone);
    EXPECT_NE(tarnwick.problems().find("SMS.zip: damaged"), std::string::npos);
    EXPECT_LT(tarnwick.results().size(), copy.size() / 2);
    EXPECT_EQ(tarnwick("export - --no-check"), NotAllDone) << "one archive is missing all the same";
    EXPECT_GT(tarnwick.results().size(), copy.size() / 2);
}

TEST_F(Copies, NeitherGoToATerminalNorComeFromOne) {
    const Terminal terminal;
    tarnwick.terminal = terminal.program;
    EXPECT_EQ(tarnwick("import"), WrongUsage);
    EXPECT_EQ(tarnwick("import /nowhere"), NotAllDone);
    EXPECT_EQ(tarnwick("export /nowhere/copy"), NotAllDone);
    EXPECT_EQ(tarnwick("export one two"), WrongUsage);
    EXPECT_EQ(tree(), before);
}

// What a tar archive may hold, and how the reader takes it.
class HostileArchive {
public:
    HostileArchive() : file_(::open("/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600)) {
        archive_write_set_format_pax_restricted(archive_.get());
        archive_write_open_fd(archive_.get(), file_.number());
    }

    HostileArchive& add(
        const std::string& name, const std::string& content,
        const std::function<void(archive_entry*)>& change = [](archive_entry*) {}) {
        archive_entry* const entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_filetype(entry, AE_IFREG);
        archive_entry_set_perm(entry, 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
        change(entry);
        archive_write_header(archive_.get(), entry);
        archive_write_data(archive_.get(), content.data(), content.size());
        archive_entry_free(entry);
        return *this;
    }

    std::string bytes() {
        archive_write_close(archive_.get());
        std::string text(static_cast<std::size_t>(::lseek(file_.number(), 0, SEEK_END)), '\0');
        EXPECT_GT(::pread(file_.number(), text.data(), text.size(), 0), 0);
        return text;
    }

private:
    const Descriptor file_;
    std::unique_ptr<archive, int (*)(archive*)> archive_{archive_write_new(), archive_write_free};
};

CopiedFile fileOf(const std::string& name, const std::string& content) {
    return {.name = name, .size = content.size(), .modified = 1, .digest = digestOf(content)};
}

std::string manifestOf(const std::vector<CopiedFile>& files) {
    Manifest manifest = newManifest("2");
    manifest.files = files;
    return textOf(manifest);
}

TEST_F(Copies, WhatNoSafeguardFolderHasIsRefused) {
    const std::string name = "TarnwickLibrary/Notes.zip";
    const CopiedFile notes = fileOf(name, "notes");
    const auto kind = [](unsigned type) {
        return [type](archive_entry* entry) { archive_entry_set_filetype(entry, type); };
    };
    const auto linkTo = [](const char* target, auto set) {
        return [target, set](archive_entry* entry) {
            archive_entry_set_size(entry, 0);
            archive_entry_set_filetype(entry, AE_IFLNK);
            set(entry, target);
        };
    };
    struct Row {
        const char* reason;
        std::vector<CopiedFile> files;
        std::string name;
        std::function<void(archive_entry*)> change = [](archive_entry*) {};
    };
    const std::string outside = "../../../../../etc/passwd";
    const Row rows[] = {
        {"has a file", {fileOf(outside, "notes")}, "Tarnwick/" + outside},
        {"has a file", {fileOf("/etc/passwd", "notes")}, "/etc/passwd"},
        {"has a file", {fileOf("TarnwickLibrary/sub/Notes.zip", "notes")}, ""},
        {"twice", {notes, notes}, "Tarnwick/" + name},
        {"impossible", {{.name = name, .size = std::uint64_t(-1)}}, "Tarnwick/" + name},
        {"cannot be written", {{.name = name, .size = std::uint64_t(1) << 49}}, ""},
        {"not at its place", {notes}, "Tarnwick/../" + name},
        {"not at its place", {notes}, "/Tarnwick/" + name},
        {"not at its place", {notes}, name},
        {"not at its place", {notes}, "Tarnwick/" + name, kind(AE_IFDIR)},
        {"no plain file", {notes}, "Tarnwick/" + name, kind(AE_IFCHR)},
        {"no plain file", {notes}, "Tarnwick/" + name, kind(AE_IFIFO)},
        {"no plain file",
         {notes},
         "Tarnwick/" + name,
         linkTo("/etc/passwd", archive_entry_set_symlink)},
        {"no plain file",
         {notes},
         "Tarnwick/" + name,
         linkTo("Tarnwick/manifest.json", archive_entry_set_hardlink)},
        {"the size", {fileOf(name, "note")}, "Tarnwick/" + name},
        {"the size", {fileOf(name, "notes!")}, "Tarnwick/" + name},
        {"not what was sent", {fileOf(name, "nodes")}, "Tarnwick/" + name},
        {"does not know", {}, "Tarnwick/" + name},
    };
    for (const auto& [reason, files, entry, change] : rows) {
        HostileArchive hostile;
        hostile.add(manifestName, manifestOf(files)).add(entry, "notes", change);
        EXPECT_EQ(import(hostile.bytes()), NotAllDone) << reason << entry;
        EXPECT_NE(tarnwick.problems().find(reason), std::string::npos)
            << reason << ": " << tarnwick.problems();
        EXPECT_EQ(tree(), before) << reason;
    }
    for (const std::string& nonsense :
         {std::string(), std::string("PK"), noise(9999), std::string(99999, '\0'),
          HostileArchive().add(manifestName, "[[[[").bytes(),
          HostileArchive().add(manifestName, R"({"format":2})").bytes(),
          HostileArchive()
              .add(manifestName, R"({"format":1,"sha256":"","a":)" + std::string(30000, '[') +
                                     std::string(30000, ']') + "}")
              .bytes(),
          HostileArchive().add(manifestName, std::string(99999, ' ')).bytes()}) {
        EXPECT_EQ(import(nonsense), NotAllDone);
        EXPECT_EQ(tree(), before);
    }
}

// Alters the stream in one of many ways.
std::string altered(std::string stream, std::mt19937& random) {
    const auto any = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    constexpr std::size_t block = 512;
    const std::size_t headers = any(2) * (stream.size() - 5 * block) + 5 * block;
    switch (any(4)) {
        case 0:
            stream[any(headers)] ^= static_cast<char>(1 << any(8));
            break;
        case 1:
            stream.resize(any(stream.size()));
            break;
        case 2: {
            const std::size_t one = any(stream.size() / block - 8), other = one + 1 + any(6);
            std::swap_ranges(stream.begin() + static_cast<std::ptrdiff_t>(one * block),
                             stream.begin() + static_cast<std::ptrdiff_t>((one + 1) * block),
                             stream.begin() + static_cast<std::ptrdiff_t>(other * block));
            break;
        }
        default:
            stream.erase(any(stream.size() / block) * block, block * (1 + any(3)));
    }
    return stream;
}

// What the digests do not cover, such as the filling behind a file, may change; no file may.
TEST_F(Copies, AlteredOnesChangeNothingAndAReasonIsTold) {
    constexpr unsigned seed = 20261124;
    std::mt19937 random(seed);
    // Without the large file, as the headers are what matters.
    fs::remove(folder.path() + root + "/TarnwickLibrary/Notes.zip");
    Contents small = saved;
    small["TarnwickLibrary/SMS.zip"] = noise(3000);
    fs::remove_all(folder.path() + root);
    put(small);
    tarnwick("export copy --no-check");
    copy = folder.content("copy");
    put({{"TarnwickLibrary/Notes.zip", "older"}});
    before = tree();
    int refused = 0;
    for (int attempt = 0; attempt < 2000; ++attempt) {
        auto reason = importInPlace(altered(copy, random));
        if (reason) {
            ++refused;
            ASSERT_EQ(tree(), before) << attempt;
            ASSERT_FALSE(reason->empty()) << attempt;
            continue;
        }
        ASSERT_EQ(safeguard(), small) << attempt;
        fs::remove_all(folder.path() + previousFolder);
        put({{"TarnwickLibrary/Notes.zip", "older"}});
    }
    EXPECT_GT(refused, 1000);
}

TEST_F(Copies, LinksInTheWayAreNotFollowed) {
    const std::string elsewhere = folder.path() + "/elsewhere";
    fs::create_directories(elsewhere);
    for (const char* place : {incomingFolder, previousFolder}) {
        fs::remove_all(folder.path() + place);
        fs::create_directory_symlink(elsewhere, folder.path() + place);
    }
    EXPECT_EQ(import(copy), AllDone) << tarnwick.problems();
    EXPECT_EQ(safeguard(), saved);
    EXPECT_TRUE(fs::is_empty(elsewhere));
    fs::remove_all(folder.path() + root);
    fs::create_directory_symlink(elsewhere, folder.path() + root);
    EXPECT_EQ(import(copy), NotAllDone) << "a link for the safeguard folder stays";
    EXPECT_TRUE(fs::is_empty(elsewhere));
}

}  // namespace
}  // namespace tarnwick::testing
