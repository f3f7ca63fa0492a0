#pragma once

#include <unistd.h>

namespace tarnwick {

// An open file, closed with it; or none, where opening failed and the number is below 0.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (isOpen())
            ::close(number_);
    }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }

private:
    int number_;
};

}  // namespace tarnwick
