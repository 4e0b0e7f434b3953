#include "examples/desktop_host/options.h"

#include <QCommandLineParser>
#include <QLocale>
#include <cstdio>

namespace host {
namespace {

using qv_commons::UserInterfaceStyle;

struct Flags {
  QCommandLineOption bundle{"bundle", "The host's bundle: a folder with an Info.plist.", "DIR",
                            QV_SAMPLE_BUNDLE};
  QCommandLineOption tour{"tour", "Run the tour and leave its files in DIR.", "DIR"};
  QCommandLineOption data{"data", "Where what lasts is kept, in place of your data folder.", "DIR"};
  QCommandLineOption birthDate{"birth-date", "The date that the tour confirms in the age gate.",
                               "YYYY-MM-DD"};
  QCommandLineOption minimumAge{"minimum-age", "The age gate's minimum in whole years.", "N", "16"};
  QCommandLineOption appearance{"appearance", "In place of the desktop's own look.", "light|dark"};
  QCommandLineOption systemVersion{"system-version",
                                   "The major version that the library takes it for.", "N", "17"};
  QCommandLineOption language{"language", "What the screens speak, for example ja.", "LANGUAGE"};
  QCommandLineOption memory{"memory", "With run.sh: run the tour on the memory adapter."};
  QCommandLineOption scene{"scene", "The part of the tour that this process plays.", "NAME"};
  QCommandLineOption help{{"h", "help"}, "Print this."};

  Flags() { scene.setFlags(QCommandLineOption::HiddenFromHelp); }
};

// Each `read` gives what is wrong, or nothing.
using Fault = std::optional<QString>;

Fault wrongValue(const QCommandLineParser& parser, const QCommandLineOption& option) {
  return "'" + parser.value(option) + "' is no " + option.valueName() + " for --" +
         option.names().constFirst() + ".";
}

Fault readBirthDate(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  if (!parser.isSet(flags.birthDate)) return std::nullopt;
  const QDate date = QDate::fromString(parser.value(flags.birthDate), Qt::ISODate);
  options.birthDate = date;
  return date.isValid() ? std::nullopt : wrongValue(parser, flags.birthDate);
}

Fault readMinimumAge(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  bool isNumber = false;
  options.minimumAge = parser.value(flags.minimumAge).toLongLong(&isNumber);
  return isNumber ? std::nullopt : wrongValue(parser, flags.minimumAge);
}

Fault readAppearance(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  const QString appearance = parser.value(flags.appearance);
  if (appearance == "light") options.appearance = UserInterfaceStyle::light;
  if (appearance == "dark") options.appearance = UserInterfaceStyle::dark;
  const bool isKnown = options.appearance != UserInterfaceStyle::unspecified;
  return isKnown || !parser.isSet(flags.appearance) ? std::nullopt
                                                    : wrongValue(parser, flags.appearance);
}

Fault readSystemVersion(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  bool isNumber = false;
  options.systemVersion = parser.value(flags.systemVersion).toInt(&isNumber);
  return isNumber ? std::nullopt : wrongValue(parser, flags.systemVersion);
}

Fault readLanguage(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  options.language = parser.value(flags.language);
  const bool isKnown = QLocale(options.language).language() != QLocale::C;
  return isKnown || !parser.isSet(flags.language) ? std::nullopt
                                                  : wrongValue(parser, flags.language);
}

Fault readAll(const QCommandLineParser& parser, const Flags& flags, Options& options) {
  options.bundleDirectory = parser.value(flags.bundle);
  options.dataDirectory = parser.value(flags.data);
  if (parser.isSet(flags.tour)) options.tourDirectory = parser.value(flags.tour);
  if (parser.isSet(flags.scene)) options.scene = parser.value(flags.scene);
  for (const auto read :
       {readBirthDate, readMinimumAge, readAppearance, readSystemVersion, readLanguage}) {
    if (Fault fault = read(parser, flags, options)) return fault;
  }
  if (parser.positionalArguments().isEmpty()) return std::nullopt;
  return "Unexpected argument '" + parser.positionalArguments().constFirst() + "'.";
}

}  // namespace

std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode) {
  QCommandLineParser parser;
  parser.setApplicationDescription("The desktop host app: every service of the library.");
  const Flags flags;
  parser.addOptions({flags.bundle, flags.tour, flags.data, flags.birthDate, flags.minimumAge,
                     flags.appearance, flags.systemVersion, flags.language, flags.memory,
                     flags.scene, flags.help});
  const bool isUnderstood = parser.parse(arguments);
  if (isUnderstood && parser.isSet(flags.help)) {
    std::printf("%s", qPrintable(parser.helpText()));
    exitCode = 0;
    return std::nullopt;
  }
  Options options;
  const Fault fault = isUnderstood ? readAll(parser, flags, options) : parser.errorText();
  if (!fault) return options;
  std::fprintf(stderr, "%s\n\n%s", qPrintable(*fault), qPrintable(parser.helpText()));
  exitCode = 2;
  return std::nullopt;
}

}  // namespace host
