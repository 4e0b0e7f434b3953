#include "qv_commons/platform/desktop/string_table.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace qv_commons::desktop {
namespace {

QString unescaped(const QString& written) {
  QString text;
  for (qsizetype i = 0; i < written.size(); ++i) {
    if (written[i] != '\\') {  // never the last
      text += written[i];
      continue;
    }
    const QChar escape = written[++i];
    bool isUnit = false;
    const ushort unit = escape == 'U' ? written.mid(i + 1, 4).toUShort(&isUnit, 16) : ushort{0};
    if (isUnit) {
      text += QChar(unit);
      i += 4;
    } else {
      text += escape == 'n' ? QChar('\n') : escape == 't' ? QChar('\t') : escape;
    }
  }
  return text;
}

}  // namespace

StringTable parseStringTable(std::string_view bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text =
      decoder.decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (decoder.hasError()) return {{}, "is not UTF-8"};
  const QRegularExpression piece(
      R"re(\s+|/\*.*?\*/|//[^\n]*|"((?:[^"\\]|\\.)*+)"\s*=\s*"((?:[^"\\]|\\.)*+)"\s*;)re",
      QRegularExpression::DotMatchesEverythingOption);
  StringTable table;
  for (qsizetype place = 0; place < text.size();) {
    const QRegularExpressionMatch match =
        piece.match(text, place, QRegularExpression::NormalMatch,
                    QRegularExpression::AnchorAtOffsetMatchOption);
    if (!match.hasMatch()) {
      table.problem = QString(R"(holds in line %1 what isn't of the form "key" = "words";)")
                          .arg(text.left(place).count('\n') + 1);
      break;
    }
    if (match.hasCaptured(1)) {
      table.words.insert(unescaped(match.captured(1)), unescaped(match.captured(2)));
    }
    place = match.capturedEnd();
  }
  return table;
}

}  // namespace qv_commons::desktop
