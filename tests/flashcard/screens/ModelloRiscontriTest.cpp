#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>
#include <limits>

#include "core/screens/Testo.h"
#include "flashcard/screens/ModelloRiscontri.h"
#include "support/screens/BancoSchermi.h"

// The rows of the findings.

namespace kvr5 {
namespace {

using Names = std::vector<std::string>;

class RigheDeiRiscontri : public testing::Test {
 protected:
  Names Rows() const {
    Names rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      rows.push_back(Std(model.index(row, ModelloRiscontri::Che).data().toString()) + " " +
                     Std(model.index(row, ModelloRiscontri::File).data().toString()));
    }
    return rows;
  }
  /// The shortest of some runs, in ns: so many missing files, then a hundred times as many entries,
  /// half of them of files that are missing.
  qint64 TimeOf(int missing) {
    constexpr int kRuns = 3;
    constexpr int kEach = 100;
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int run = 0; run < kRuns; ++run) {
      model.Svuota();
      QElapsedTimer since;
      since.start();
      for (int i = 0; i < missing; ++i) {
        model.Aggiungi({Difetto::Mancante, "m" + std::to_string(i) + ".mp3"});
      }
      for (int i = 0; i < missing * kEach; ++i) {
        const bool known = i % 2 == 0;
        model.Aggiungi(
            {Difetto::VoceVuota,
             (known ? "M" + std::to_string(i % missing) : "X" + std::to_string(i)) + ".mp3"});
      }
      shortest = std::min(shortest, since.nsecsElapsed());
      EXPECT_EQ(model.rowCount(), missing + missing * kEach / 2);
    }
    return shortest;
  }

  test::BancoSchermi b;
  ModelloRiscontri model{b.C};
};

TEST_F(RigheDeiRiscontri, AnEntryOfAFileThatIsMissingIsNotShownTwice) {
  model.Aggiungi({Difetto::Mancante, "P01-001.mp3"});
  model.Aggiungi({Difetto::Diverso, "P01-002.mp3"});
  model.Aggiungi({Difetto::VoceVuota, "p01-001.MP3"});
  model.Aggiungi({Difetto::VoceVuota, "P01-002.mp3"});
  model.Aggiungi({Difetto::VoceVuota, "P01-003.mp3"});
  EXPECT_EQ(Rows(), (Names{"Not on the card P01-001.mp3", "Differs from the project P01-002.mp3",
                           "In a list, not on the card P01-002.mp3",
                           "In a list, not on the card P01-003.mp3"}));
  model.Svuota();
  model.Aggiungi({Difetto::VoceVuota, "P01-001.mp3"});
  EXPECT_EQ(Rows(), Names{"In a list, not on the card P01-001.mp3"}) << "what was is forgotten";
}

TEST_F(RigheDeiRiscontri, ManyEntriesBesideManyMissingFilesTakeNoMoreThanTheirNumber) {
  const qint64 few = TimeOf(100);
  const qint64 many = TimeOf(1000);
  EXPECT_LT(many, few * 40) << "ten times as many of both; by pairs it would be a hundred times";
}

}  // namespace
}  // namespace kvr5
