// The support e-mail's body. The others get the screen's figures as texts, which the library has to
// make.
#include <QString>
#include <QStringList>
#include <absl/strings/str_cat.h>
#include <absl/strings/str_join.h>
#include <boost/algorithm/string/join.hpp>
#include <fmt/compile.h>
#include <fmt/format.h>
#include <glib.h>

#include "qv_commons/support/support_mail.h"

#include "bench/contest.h"

namespace qv_commons::bench {
namespace {

using Purchases = std::vector<std::string>;

constexpr const char* kOpening = "Reason for contacting support:";
constexpr const char* kAppId = "com.example.notes";
constexpr const char* kModel = "iPhone";
constexpr const char* kSystem = "14.4";
constexpr const char* kWidth = "375.0";
constexpr const char* kHeight = "812.0";
constexpr const char* kLanguage = "en-GB";
constexpr const char* kVersion = "2.4.1(317)";

#define QV_BENCH_BODY                                                                        \
  "{}\n\n\n\n\n\n\n\n\nApp ID: {}\nDevice: {} os:  {} size: {}x{} locale: {}\nApp version: " \
  "{}\nIAP: Yes {}\n"

std::string byLibrary(const Purchases& purchases) {
  SupportMailInputs inputs;
  inputs.appId = kAppId;
  inputs.localizedModel = kModel;
  inputs.systemVersion = kSystem;
  inputs.screenSize = {375, 812};
  inputs.preferredLanguage = kLanguage;
  inputs.appVersion = kVersion;
  inputs.purchases = purchases;
  return supportMailBody(inputs);
}

std::string byAbseil(const Purchases& purchases) {
  return absl::StrCat(kOpening, "\n\n\n\n\n\n\n\n\nApp ID: ", kAppId, "\nDevice: ", kModel,
                      " os:  ", kSystem, " size: ", kWidth, "x", kHeight, " locale: ", kLanguage,
                      "\nApp version: ", kVersion, "\nIAP: Yes ", absl::StrJoin(purchases, ", "),
                      "\n");
}

std::string byFmt(const Purchases& purchases) {
  return fmt::format(QV_BENCH_BODY, kOpening, kAppId, kModel, kSystem, kWidth, kHeight, kLanguage,
                     kVersion, fmt::join(purchases, ", "));
}

std::string byCompiledFmt(const Purchases& purchases) {
  return fmt::format(FMT_COMPILE(QV_BENCH_BODY), kOpening, kAppId, kModel, kSystem, kWidth, kHeight,
                     kLanguage, kVersion, fmt::join(purchases, ", "));
}

std::string byAppending(const Purchases& purchases) {
  std::string body(kOpening);
  body.append("\n\n\n\n\n\n\n\n\nApp ID: ").append(kAppId).append("\nDevice: ").append(kModel);
  body.append(" os:  ").append(kSystem).append(" size: ").append(kWidth).append("x");
  body.append(kHeight).append(" locale: ").append(kLanguage).append("\nApp version: ");
  body.append(kVersion).append("\nIAP: Yes ");
  for (const std::string& purchase : purchases) {
    if (&purchase != &purchases.front()) body += ", ";
    body += purchase;
  }
  return body + "\n";
}

std::string byBoost(const Purchases& purchases) {
  return byAppending({boost::algorithm::join(purchases, ", ")});
}

std::string byGLib(const Purchases& purchases) {
  GString* list = g_string_new(nullptr);
  for (const std::string& purchase : purchases) {
    if (&purchase != &purchases.front()) g_string_append(list, ", ");
    g_string_append_len(list, purchase.data(), static_cast<gssize>(purchase.size()));
  }
  char* body =
      g_strconcat(kOpening, "\n\n\n\n\n\n\n\n\nApp ID: ", kAppId, "\nDevice: ", kModel,
                  " os:  ", kSystem, " size: ", kWidth, "x", kHeight, " locale: ", kLanguage,
                  "\nApp version: ", kVersion, "\nIAP: Yes ", list->str, "\n", nullptr);
  std::string result(body);
  g_free(body);
  g_string_free(list, TRUE);
  return result;
}

std::string byQt(const Purchases& purchases) {
  QStringList list;
  for (const std::string& purchase : purchases) list.append(QString::fromStdString(purchase));
  return QStringLiteral(
             "%1\n\n\n\n\n\n\n\n\nApp ID: %2\nDevice: %3 os:  %4 size: %5x%6 locale: %7\n"
             "App version: %8\nIAP: Yes %9\n")
      .arg(kOpening, kAppId, kModel, kSystem, kWidth, kHeight, kLanguage, kVersion, list.join(", "))
      .toStdString();
}

// A body of the same size that is there already.
std::string byCopying(const Purchases& purchases) {
  static const std::string largest = byLibrary(Purchases(100'000, purchases.front()));
  static const std::size_t perPurchase = purchases.front().size() + 2;
  static const std::size_t others = largest.size() - 100'000 * perPurchase;
  return largest.substr(0, others + purchases.size() * perPurchase);
}

}  // namespace

void addMailBodyContests() {
  for (const auto& [name, count] : {std::pair("3 purchases", 3U), std::pair("100 purchases", 100U),
                                    std::pair("100,000 purchases", 100'000U)}) {
    Contest<Purchases>("support e-mail's body", name,
                       {Purchases(count, "com.example.notes.pro_monthly")})
        .enter("QV Commons", byLibrary)
        .enter("Abseil", byAbseil)
        .enter("compiled {fmt}", byCompiledFmt)
        .enter("{fmt}", byFmt)
        .enter("std::string::append", byAppending)
        .enter("Boost", byBoost)
        .enter("GLib", byGLib)
        .enter("Qt", byQt)
        .limit("a copy of the body", byCopying);
  }
}

}  // namespace qv_commons::bench
