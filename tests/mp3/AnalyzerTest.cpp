#include <gtest/gtest.h>

#include <filesystem>

#include "mp3/Accettazione.h"
#include "mp3/modMp3Infos.h"
#include "support/Banco.h"

// The test signal that lies beside the program.

namespace kvr5 {
namespace {

TEST(Analyzer, IsASweepOfTenSecondsThatEveryPlayerTakes) {
  test::Banco b;
  std::filesystem::copy_file(std::string(KVR5_STAGED_PROGRAM) + "/Analyzer.mp3",
                             b.Cartella.Host() / "Analyzer.mp3");
  modMp3Infos reader(b.C.Files);
  const InfoMp3 info = reader.LeggiInfoMp3(b.Percorso("Analyzer.mp3"));
  EXPECT_TRUE(BuonoPerIngressi(info));
  EXPECT_TRUE(BuonoPerEditor(info));
  EXPECT_EQ(info.Bitrate, 64000);
  EXPECT_EQ(info.SampleRate, 44100);
  EXPECT_EQ(info.Channels, 1);
  EXPECT_FALSE(info.IsVbr);
  EXPECT_EQ(info.Duration, 10);
}

}  // namespace
}  // namespace kvr5
