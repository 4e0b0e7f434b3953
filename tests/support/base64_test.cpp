#include "qv_commons/support/base64.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <random>
#include <vector>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

TEST(Base64, EncodesTheExamplesOfItsStandard) {
  EXPECT_EQ(base64Encoded(""), "");
  EXPECT_EQ(base64Encoded("f"), "Zg==");
  EXPECT_EQ(base64Encoded("fo"), "Zm8=");
  EXPECT_EQ(base64Encoded("foo"), "Zm9v");
  EXPECT_EQ(base64Encoded("foob"), "Zm9vYg==");
  EXPECT_EQ(base64Encoded("fooba"), "Zm9vYmE=");
  EXPECT_EQ(base64Encoded("foobar"), "Zm9vYmFy");
}

TEST(Base64, UsesTheWholeAlphabet) {
  // The 64 six-bit values in order, packed into 48 bytes.
  const unsigned char bytes[] = {0x00, 0x10, 0x83, 0x10, 0x51, 0x87, 0x20, 0x92, 0x8b, 0x30,
                                 0xd3, 0x8f, 0x41, 0x14, 0x93, 0x51, 0x55, 0x97, 0x61, 0x96,
                                 0x9b, 0x71, 0xd7, 0x9f, 0x82, 0x18, 0xa3, 0x92, 0x59, 0xa7,
                                 0xa2, 0x9a, 0xab, 0xb2, 0xdb, 0xaf, 0xc3, 0x1c, 0xb3, 0xd3,
                                 0x5d, 0xb7, 0xe3, 0x9e, 0xbb, 0xf3, 0xdf, 0xbf};
  EXPECT_EQ(base64Encoded({reinterpret_cast<const char*>(bytes), sizeof bytes}),
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/");
}

TEST(Base64, TakesEveryByteAsItIs) {
  EXPECT_EQ(base64Encoded(std::string_view("\0", 1)), "AA==");
  EXPECT_EQ(base64Encoded("\xff\xff"), "//8=");
  EXPECT_EQ(base64Encoded("\xff\xff\xff"), "////");
}

TEST(Base64, BreaksNoLines) {
  const std::string text = base64Encoded(std::string(300, '\0'));
  EXPECT_EQ(text, std::string(400, 'A'));
}

std::string byOpenSSL(const std::vector<unsigned char>& bytes) {
  std::vector<unsigned char> text(4 * ((bytes.size() + 2) / 3) + 1);
  const int size = EVP_EncodeBlock(text.data(), bytes.data(), static_cast<int>(bytes.size()));
  return {text.begin(), text.begin() + size};
}

// Each size has a heap block of its own, so that AddressSanitizer sees a byte read beyond its end.
TEST(Base64, AgreesWithOpenSSLAtEverySize) {
  std::mt19937 random(64);
  for (std::size_t size = 0; size < 300; ++size) {
    std::vector<unsigned char> bytes(size);
    for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(random());
    EXPECT_EQ(base64Encoded({reinterpret_cast<const char*>(bytes.data()), size}), byOpenSSL(bytes));
  }
}

TEST(Base64, AllocatesOnlyItsResult) {
  const std::string bytes(100 * 1000 * 1000, 'x');
  const test::AllocationCounter counter;
  const std::string text = base64Encoded(bytes);
  EXPECT_EQ(counter.calls(), 1);
  EXPECT_EQ(text.size(), 133333336u);
  EXPECT_LE(counter.peakBytes(), 133333336 + 4096);  // large blocks come in whole pages
}

}  // namespace
}  // namespace qv_commons
