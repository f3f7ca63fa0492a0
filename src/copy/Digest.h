#pragma once

#include <memory>
#include <string>
#include <string_view>

struct evp_md_ctx_st;

namespace tarnwick {

// SHA-256, of data that comes in pieces.
class Digest {
public:
    Digest();
    ~Digest();

    void add(std::string_view data);
    // 64 hexadecimal digits, of all that was added. Call it once.
    std::string text();

private:
    const std::unique_ptr<evp_md_ctx_st, void (*)(evp_md_ctx_st*)> context_;
};

inline std::string digestOf(std::string_view data) {
    Digest digest;
    digest.add(data);
    return digest.text();
}

}  // namespace tarnwick
