#include "examples/desktop_host/options.h"

#include <QCommandLineParser>
#include <cstdio>

namespace host {

std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode) {
  QCommandLineParser parser;
  parser.setApplicationDescription("The desktop host app: every service of the library.");
  const QCommandLineOption bundle("bundle", "The host's bundle: a folder with an Info.plist.",
                                  "DIR", QV_SAMPLE_BUNDLE);
  const QCommandLineOption tour("tour", "Run the tour and leave its files in DIR.", "DIR");
  const QCommandLineOption data("data", "Where what lasts is kept, in place of your data folder.",
                                "DIR");
  const QCommandLineOption memory("memory", "With run.sh: run the tour on the memory adapter.");
  const QCommandLineOption help({"h", "help"}, "Print this.");
  parser.addOptions({bundle, tour, data, memory, help});

  if (!parser.parse(arguments) || !parser.positionalArguments().isEmpty()) {
    const QString why = parser.errorText().isEmpty()
                            ? "Unexpected argument '" + parser.positionalArguments().value(0) + "'."
                            : parser.errorText();
    std::fprintf(stderr, "%s\n\n%s", qPrintable(why), qPrintable(parser.helpText()));
    exitCode = 2;
    return std::nullopt;
  }
  if (parser.isSet(help)) {
    std::printf("%s", qPrintable(parser.helpText()));
    exitCode = 0;
    return std::nullopt;
  }
  Options options{parser.value(bundle), parser.value(data), std::nullopt};
  if (parser.isSet(tour)) options.tourDirectory = parser.value(tour);
  return options;
}

}  // namespace host
