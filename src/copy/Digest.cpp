#include "copy/Digest.h"

#include <openssl/evp.h>

#include <new>

namespace tarnwick {

Digest::Digest() : context_(EVP_MD_CTX_new(), EVP_MD_CTX_free) {
    if (!context_ || EVP_DigestInit_ex(context_.get(), EVP_sha256(), nullptr) != 1)
        throw std::bad_alloc();
}

Digest::~Digest() = default;

void Digest::add(std::string_view data) {
    EVP_DigestUpdate(context_.get(), data.data(), data.size());
}

std::string Digest::text() {
    constexpr std::string_view digits = "0123456789abcdef";
    unsigned char bytes[EVP_MAX_MD_SIZE] = {};
    unsigned length = 0;
    EVP_DigestFinal_ex(context_.get(), bytes, &length);
    std::string text;
    for (unsigned index = 0; index < length; ++index)
        for (const int shift : {4, 0})
            text += digits[bytes[index] >> shift & 0xF];
    return text;
}

}  // namespace tarnwick
