#include "guard/RunLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace tarnwick {

namespace {

// Every run writes all of the record: a mark, what it does, and blanks.
constexpr std::size_t recordSize = 256;  // bytes
constexpr char cutOffMark = '-';
constexpr char unseenMark = '?';

LeftRun::Kind kindOf(char mark) {
    if (mark == cutOffMark)
        return LeftRun::Kind::CutOff;
    return mark == unseenMark ? LeftRun::Kind::Unseen : LeftRun::Kind::None;
}

std::string withoutBlanksAtEnd(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(" \n") + 1));
}

LeftRun recordIn(int descriptor) {
    char text[recordSize] = {};
    const ssize_t size = ::pread(descriptor, text, sizeof text, 0);
    if (size <= 1)
        return {};
    return {kindOf(text[0]), withoutBlanksAtEnd({text + 1, static_cast<std::size_t>(size) - 1})};
}

}  // namespace

std::string textOf(const LeftRun& left) {
    switch (left.kind) {
        case LeftRun::Kind::CutOff:
            return "The last run was cut off: " + left.what + ". Run it again.";
        case LeftRun::Kind::Unseen:
            return "Nobody saw the end of the last run: " + left.what + ". Its result is in " +
                   runLogPath + ".";
        case LeftRun::Kind::None:
            break;
    }
    return {};
}

RunLock::RunLock(const std::string& path)
    : file_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)) {
    if (file_.isOpen() && ::flock(file_.number(), LOCK_EX | LOCK_NB) == 0)
        return;
    error_ = errno;
    state_ = error_ == EWOULDBLOCK ? State::TakenByAnother : State::Unavailable;
}

bool hasLeftRun(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    return file.isOpen() && recordIn(file.number()).kind != LeftRun::Kind::None;
}

LeftRun RunLock::left() const {
    return recordIn(file_.number());
}

void RunLock::record(const std::string& what) const {
    write(cutOffMark, what);
}

void RunLock::recordUnseen(const std::string& what) const {
    write(unseenMark, what);
}

void RunLock::clear() const {
    write(' ', "");
}

// In one call, as this process may end at any moment. A record that cannot be written is missed by
// nobody but the next run.
void RunLock::write(char mark, const std::string& what) const {
    std::string text = mark + what.substr(0, recordSize - 2);
    text.resize(recordSize - 1, ' ');
    [[maybe_unused]] const ssize_t size =
        ::pwrite(file_.number(), (text + '\n').c_str(), recordSize, 0);
}

}  // namespace tarnwick
