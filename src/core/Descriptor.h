#pragma once

#include <unistd.h>

#include <cerrno>

namespace tarnwick {

// Owns an open file and closes it; errno stays as it was. Below 0 the number stands for a file that
// could not be opened.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        const int error = errno;
        if (isOpen())
            ::close(number_);
        errno = error;
    }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

private:
    const int number_;
};

}  // namespace tarnwick
