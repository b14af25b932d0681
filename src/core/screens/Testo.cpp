#include "core/screens/Testo.h"

#include <algorithm>

namespace kvr5 {
namespace {

constexpr QChar kBreak(0x200B);  // a space of no width

bool IsBar(QChar each) {
  return each == QLatin1Char('\\') || each == QLatin1Char('/');
}

/// How many characters of a word, from `from` on, make one piece of at most that width.
qsizetype PieceOf(const QString& word, qsizetype from, const QFontMetrics& metrics, int width) {
  qsizetype behindBar = 0;
  for (qsizetype i = from; i < word.size(); ++i) {
    if (metrics.horizontalAdvance(word.mid(from, i + 1 - from)) > width) {
      if (behindBar > 0) return behindBar;
      const qsizetype length = std::max<qsizetype>(1, i - from);
      const bool torn = from + length < word.size() && word[from + length].isLowSurrogate();
      return !torn ? length : length > 1 ? length - 1 : length + 1;
    }
    if (IsBar(word[i])) behindBar = i + 1 - from;
  }
  return word.size() - from;
}

QString InPieces(const QString& word, const QFontMetrics& metrics, int width) {
  if (metrics.horizontalAdvance(word) <= width) return word;
  QString pieces;
  for (qsizetype at = 0; at < word.size();) {
    const qsizetype length = PieceOf(word, at, metrics, width);
    if (at > 0) pieces += kBreak;
    pieces += word.mid(at, length);
    at += length;
  }
  return pieces;
}

}  // namespace

QString Spezzabile(const QString& testo, const QFontMetrics& caratteri, int pixel) {
  QString whole;
  QString word;
  for (const QChar each : testo) {
    if (!each.isSpace()) {
      word += each;
      continue;
    }
    whole += InPieces(word, caratteri, pixel) + each;
    word.clear();
  }
  return whole + InPieces(word, caratteri, pixel);
}

}  // namespace kvr5
