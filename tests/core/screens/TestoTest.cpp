#include <gtest/gtest.h>

#include "core/screens/Tema.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

constexpr QChar kBreak(0x200B);

class LongWords : public testing::Test {
 protected:
  /// The pieces of a text that has a place to break every 100 pixels or sooner.
  QStringList Pieces(const QString& text) { return Spezzabile(text, metrics, 100).split(kBreak); }
  QFontMetrics metrics{FontDi(Carattere::Corpo)};
};

TEST_F(LongWords, WordsThatFitStayAsTheyAre) {
  const QString text = QStringLiteral("Free some space or use a larger card,\nthen repeat.");
  EXPECT_EQ(Spezzabile(text, metrics, 400), text);
  EXPECT_EQ(Spezzabile({}, metrics, 400), QString());
}

TEST_F(LongWords, APathBreaksBehindItsBars) {
  EXPECT_EQ(Pieces(QStringLiteral("C:\\Audio\\Museum\\Hall\\a.mp3")).first().back(), '\\');
  EXPECT_EQ(Pieces(QStringLiteral("/home/restauro/music/a.mp3")).first().back(), '/');
}

TEST_F(LongWords, AWordWithoutBarsBreaksWhereItMust) {
  const QString word(300, QLatin1Char('W'));
  const QStringList pieces = Pieces(word);
  EXPECT_GT(pieces.size(), 20);
  EXPECT_EQ(pieces.join(QString()), word);
  for (const QString& piece : pieces) EXPECT_LE(metrics.horizontalAdvance(piece), 100);
}

TEST_F(LongWords, ACharacterOfTwoUnitsIsNeverTornApart) {
  const QString word = QString::fromUtf8("\xF0\x9F\x8E\xB5").repeated(40);
  for (const int width : {1, 20, 100}) {  // the least has no room for even one
    const QStringList pieces = Spezzabile(word, metrics, width).split(kBreak);
    EXPECT_EQ(pieces.join(QString()), word);
    for (const QString& piece : pieces) {
      EXPECT_FALSE(piece.front().isLowSurrogate()) << width;
      EXPECT_FALSE(piece.back().isHighSurrogate()) << width;
    }
  }
}

}  // namespace
}  // namespace kvr5
