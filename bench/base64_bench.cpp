// Base64 of receipts, each encoded into a fresh string.
#include <QByteArray>
#include <absl/strings/escaping.h>
#include <boost/beast/core/detail/base64.hpp>
#include <glib.h>
#include <openssl/evp.h>
#include <random>

#include "qv_commons/support/base64.h"

#include "bench/contest.h"

namespace qv_commons::bench {
namespace {

std::size_t encodedSize(const std::string& bytes) {
  return (bytes.size() + 2) / 3 * 4;
}

std::string byOpenSSL(const std::string& bytes) {
  std::string text(encodedSize(bytes) + 1, '\0');  // the encoder writes an end
  EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                  reinterpret_cast<const unsigned char*>(bytes.data()),
                  static_cast<int>(bytes.size()));
  text.pop_back();
  return text;
}

std::string byAbseil(const std::string& bytes) {
  return absl::Base64Escape(bytes);
}

// The result as it comes: a copy would be no part of the encoding.
struct GLibText {
  std::unique_ptr<char, decltype(&g_free)> text;
  std::string_view view() const { return text.get(); }
};

GLibText byGLib(const std::string& bytes) {
  return {{g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size()), g_free}};
}

std::string byBoost(const std::string& bytes) {
  namespace base64 = boost::beast::detail::base64;
  std::string text(base64::encoded_size(bytes.size()), '\0');
  text.resize(base64::encode(text.data(), bytes.data(), bytes.size()));
  return text;
}

struct QtText {
  QByteArray text;
  std::string_view view() const { return {text.data(), static_cast<std::size_t>(text.size())}; }
};

QtText byQt(const std::string& bytes) {
  const auto size = static_cast<qsizetype>(bytes.size());
  return {QByteArray::fromRawData(bytes.data(), size).toBase64()};
}

// As many bytes as the text has, from where the bytes are and a third of them twice.
std::string byCopying(const std::string& bytes) {
  std::string text;
  text.reserve(encodedSize(bytes));
  text.append(bytes).append(bytes, 0, encodedSize(bytes) - bytes.size());
  return text;
}

std::string randomBytes(std::size_t size) {
  std::mt19937 random(64);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

}  // namespace

void addBase64Contests() {
  for (const auto& [name, size] :
       {std::pair("1 KB", 1000U), std::pair("100 KB", 100'000U), std::pair("1 MB", 1'000'000U)}) {
    Contest<std::string>("base64", name, {randomBytes(size)})
        .enter("QV Commons", base64Encoded)
        .enter("Abseil", byAbseil)
        .enter("OpenSSL", byOpenSSL)
        .enter("Boost", byBoost)
        .enter("GLib", byGLib)
        .enter("Qt", byQt)
        .limit("a copy of as many bytes", byCopying);
  }
}

}  // namespace qv_commons::bench
