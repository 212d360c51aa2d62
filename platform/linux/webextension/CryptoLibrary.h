#pragma once

#include "platform/linux/LateLibrary.h"

#include <openssl/evp.h>
#include <openssl/x509.h>

// clang-format off
#define NORVIN_CRYPTO_FUNCTIONS(take) \
    take(CRYPTO_free) \
    take(EVP_DigestSign) \
    take(EVP_DigestSignInit) \
    take(EVP_MD_CTX_free) \
    take(EVP_MD_CTX_new) \
    take(EVP_PKEY_Q_keygen) \
    take(EVP_PKEY_free) \
    take(EVP_sha256) \
    take(i2d_PUBKEY)
// clang-format on

namespace norvin {

NORVIN_LATE_LIBRARY(CryptoLibrary, NORVIN_CRYPTO_FUNCTIONS, "crypto", 3);

} // namespace norvin
