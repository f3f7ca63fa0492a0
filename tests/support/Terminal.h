#pragma once

#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <string>
#include <utility>

namespace tarnwick::testing {

// A pseudo terminal: the descriptor of the person and that of the program.
struct Terminal {
    Terminal() { EXPECT_EQ(::openpty(&person, &program, nullptr, nullptr, nullptr), 0); }
    ~Terminal() {
        ::close(person);
        hangUp();
    }
    void type(const std::string& keys) const {
        EXPECT_GT(::write(person, keys.data(), keys.size()), 0);
    }
    void hangUp() { ::close(std::exchange(program, -1)); }

    int person = -1;
    int program = -1;
};

}  // namespace tarnwick::testing
