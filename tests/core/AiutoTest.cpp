#include <gtest/gtest.h>

#include <filesystem>

#include "core/Aiuto.h"
#include "support/Banco.h"
#include "support/EsecutoreFinto.h"
#include "support/Lingue.h"

namespace kvr5 {
namespace {

using test::Banco;
using test::EsecutoreFinto;

class Help : public testing::Test {
 protected:
  void Language(const std::string& text) {
    b.Cartella.Write("program/Language/Mine.lan", text);
    b.C.Stato.FileLingua = b.Percorso("program/Language/Mine.lan");
  }
  std::string HelpFolder() { return b.Percorso("program") + "\\Help\\"; }

  Banco b;
  EsecutoreFinto host;
};

TEST_F(Help, OpensTheDocumentThatTheLanguageNames) {
  Language("[HelpFiles]\r\n001=Guide.pdf\r\n");
  ApriAiuto(b.C, host);
  EXPECT_EQ(host.Aperti, std::vector{HelpFolder() + "Guide.pdf"});
}

TEST_F(Help, OfEachLanguageOpensADocumentThatIsThere) {
  for (const auto& file : test::FileDiLingua()) {
    b.C.Stato.FileLingua = b.Percorso("program") + "\\Language\\" + file;
    ApriAiuto(b.C, host);
    const std::string name = file.substr(0, file.rfind('.')) + ".htm";
    EXPECT_EQ(host.Aperti.back(), HelpFolder() + name);
    EXPECT_TRUE(std::filesystem::exists(std::string(KVR5_STAGED_PROGRAM) + "/Help/" + name));
  }
}

TEST_F(Help, OpensTheFolderWhereTheLanguageNamesNone) {
  Language("[Strings]\r\n0020000=x\r\n");
  ApriAiuto(b.C, host);
  EXPECT_EQ(host.Aperti, std::vector{HelpFolder()});
}

TEST_F(Help, HasTheBusyPointerOnUntilEventsHaveRun) {
  Language("[HelpFiles]\r\n001=Guide.pdf\r\n");
  Puntatore while_ = Puntatore::Normale;
  b.Messaggi.Accade = [&] {
    while_ = b.Messaggi.Ora;
    EXPECT_EQ(host.Aperti.size(), 1U) << "it was opened before";
  };
  ApriAiuto(b.C, host);
  EXPECT_EQ(while_, Puntatore::Attesa);
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
  EXPECT_EQ(b.Messaggi.Volte, 1);
}

TEST_F(Help, ThatDoesNotOpenIsPassedOver) {
  Language("[HelpFiles]\r\n001=Guide.pdf\r\n");
  host.Riesce = false;
  ApriAiuto(b.C, host);
  EXPECT_TRUE(b.Finestre.Silenzio());
  EXPECT_EQ(b.Messaggi.Ora, Puntatore::Normale);
}

TEST_F(Help, OfALanguageFileThatIsMissingMakesItWithAWarning) {
  b.C.Stato.FileLingua = b.Percorso("program/Language/Gone.lan");
  ApriAiuto(b.C, host);
  EXPECT_EQ(b.Finestre.Prossimo().Titolo, "Configuration file not found");
  EXPECT_EQ(b.Cartella.Read("program/Language/Gone.lan"), "[Config]\r\n");
  EXPECT_EQ(host.Aperti, std::vector{HelpFolder()});
}

}  // namespace
}  // namespace kvr5
