#include <gtest/gtest.h>

#include "playerconfig/ParoleConto.h"
#include "support/Banco.h"

namespace kvr5 {
namespace {

TEST(ParoleConto, OfListsNamesListsAndTracks) {
  test::Banco b;
  CifreProgetto figures;
  figures.Liste = 7;
  figures.Brani = 143;
  figures.Byte = 512ULL * 1024 * 1024;
  EXPECT_EQ(ParoleConto(b.C, figures, false), "7 lists, 143 tracks") << "not all was looked for";
  figures.Completo = true;
  EXPECT_EQ(ParoleConto(b.C, figures, false), "7 lists, 143 tracks, 512 MB");
}

TEST(ParoleConto, OfAScheduleNamesSegmentsAndSpotsAlsoWhereThereIsNone) {
  test::Banco b;
  CifreProgetto figures;
  EXPECT_EQ(ParoleConto(b.C, figures, true), "0 segments, 0 spots");
  figures.Segmenti = 1;
  figures.Spot = 1;
  EXPECT_EQ(ParoleConto(b.C, figures, true), "1 segment, 1 spot");
}

TEST(ParoleConto, SpeaksTheLanguage) {
  test::Banco b;
  b.C.Stato.FileLingua = b.Percorso("program/Language/Italiano.lan");
  CifreProgetto figures;
  figures.Liste = 1;
  figures.Brani = 2;
  EXPECT_EQ(ParoleConto(b.C, figures, false), "1 lista, 2 brani");
  EXPECT_EQ(ParoleMancanti(b.C, 1), "1 mancante");
  EXPECT_EQ(ParoleMancanti(b.C, 2), "2 mancanti");
}

TEST(ParoleConto, ADatabaseThatCannotBeReadIsWorseThanFilesThatAreMissing) {
  test::Banco b;
  CifreProgetto figures;
  EXPECT_EQ(AvvisoConto(b.C, figures), "");
  figures.Mancanti = 3;
  EXPECT_EQ(AvvisoConto(b.C, figures), "3 missing");
  figures.Illeggibile = "playlist.mdb";
  EXPECT_EQ(AvvisoConto(b.C, figures), "playlist.mdb can't be read");
}

}  // namespace
}  // namespace kvr5
