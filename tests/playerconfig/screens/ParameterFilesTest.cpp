#include <QCheckBox>
#include <filesystem>

#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmTempiFade.h"
#include "projects/Descrittore.h"

// The screens of parameters over a device file that can't be written, that has gone, or that holds
// more than the screens know of.

namespace kvr5 {
namespace {

namespace fs = std::filesystem;

using test::kDescriptor;

/// Every key of the three screens, away from what they begin with, among lines of others.
constexpr const char* kFull =
    "; made by hand\r\nWXYZ=9\r\nLMP3=3\r\nLLIN=4\r\nLLI2=5\r\nTAVC=2\r\nTFOU=6\r\nTFIN=7\r\n"
    "TADU=8\r\nOMON=1\r\nINVR=0\r\nPYDT=1\r\nPYDL=10\r\nTAPL=12\r\nRSPL=9\r\nMOMD=1\r\nCMAD=7\r\n"
    "CMCK=0\r\nCMCL=1\r\nCMBR=2\r\nCMPR=1\r\nCMSB=2\r\nCMDB=7\r\nCMDR=5\r\nCMI3=2\r\nORI3=1\r\n"
    "\r\n[Other]\r\nLMP3=1\r\n";

/// Changes a control of a screen and gives the key that stands for it.
const char* ChangeOne(frmTempiFade& form) {
  QTest::keyClick(form.sliLMP3, Qt::Key_Up);
  return "LMP3";
}
const char* ChangeOne(frmPanelExtra& form) {
  form.cmbRSPL->setCurrentIndex(30);
  return "RSPL";
}
const char* ChangeOne(frmConfig485& form) {
  form.cmbCMBR->setCurrentIndex(0);
  return "CMBR";
}

template <class T>
class ParameterFiles : public test::ProvaParametri<T> {
 protected:
  using test::ProvaParametri<T>::b;
  using test::ProvaParametri<T>::forma;

  T& Open(const std::string& lines) {
    this->Progetto(4, 1);
    this->ScriviConfig(lines);
    return Reopen();
  }
  T& Reopen() {
    this->Apri();
    if (std::is_same_v<T, frmConfig485>) b.Finestre.Prossimo();  // what the link takes
    EXPECT_TRUE(b.Finestre.Silenzio());
    return *forma;
  }
  fs::path Host(const char* name) const { return b.Cartella.Host() / name; }
  std::vector<std::string> Names() const { return b.Nomi("program/Projects/Hall"); }
  /// The lines of the device file, whose values may have changed, without those.
  std::string Keys() const {
    std::string keys;
    bool value = false;
    for (const char each : this->Config()) {
      if (each == '\r') value = false;
      if (!value) keys += each;
      if (each == '=') value = true;
    }
    return keys;
  }
};

using Screens = testing::Types<frmTempiFade, frmPanelExtra, frmConfig485>;
TYPED_TEST_SUITE(ParameterFiles, Screens);

TYPED_TEST(ParameterFiles, AReadOnlyOneStaysAsItIsAndTheScreenCloses) {
  ChangeOne(this->Open(kFull));
  const std::string before = this->Config();
  const auto names = this->Names();
  fs::permissions(this->Host(this->kConfig), fs::perms::owner_read);
  this->b.C.Errore.Clear();
  this->Salva();
  EXPECT_EQ(this->Config(), before);
  EXPECT_EQ(this->Names(), names) << "nothing half written lies beside it";
  EXPECT_EQ(this->b.C.Errore.Last().Number(), 75);
  EXPECT_TRUE(this->b.Finestre.Silenzio());
}

TYPED_TEST(ParameterFiles, AReadOnlyOneThatCanBeWrittenAgainTakesTheNextSave) {
  this->Open(kFull);
  fs::permissions(this->Host(this->kConfig), fs::perms::owner_read);
  ChangeOne(*this->forma);
  this->Salva();
  fs::permissions(this->Host(this->kConfig), fs::perms::owner_read | fs::perms::owner_write);
  const char* key = ChangeOne(this->Reopen());
  const std::string before = this->Chiave(key);
  this->Salva();
  EXPECT_NE(this->Chiave(key), before);
}

TYPED_TEST(ParameterFiles, AVanishedOneStaysGoneAndTheScreenCloses) {
  ChangeOne(this->Open(kFull));
  fs::remove(this->Host(this->kConfig));
  const auto names = this->Names();
  this->Salva();
  EXPECT_FALSE(fs::exists(this->Host(this->kConfig)));
  EXPECT_EQ(this->Names(), names);
  EXPECT_TRUE(this->b.Finestre.Silenzio());
}

TYPED_TEST(ParameterFiles, OneThatVanishedWithItsProjectStaysGone) {
  ChangeOne(this->Open(kFull));
  fs::remove_all(this->Host("program/Projects/Hall"));
  this->Salva();
  EXPECT_FALSE(fs::exists(this->Host("program/Projects/Hall")));
  EXPECT_TRUE(this->b.Finestre.Silenzio());
}

TYPED_TEST(ParameterFiles, AFolderInItsPlaceIsLeftAlone) {
  ChangeOne(this->Open(kFull));
  fs::remove(this->Host(this->kConfig));
  fs::create_directory(this->Host(this->kConfig));
  this->Salva();
  EXPECT_TRUE(fs::is_directory(this->Host(this->kConfig)));
  EXPECT_TRUE(fs::is_empty(this->Host(this->kConfig)));
}

TYPED_TEST(ParameterFiles, ASaveLosesNoKeyAndChangesTheChosenOneAlone) {
  this->Open(kFull);
  const std::string before = this->Config();
  this->Salva();
  EXPECT_EQ(this->Config(), before) << "what isn't changed is written as it was";
  const std::string keys = this->Keys();
  const char* key = ChangeOne(this->Reopen());
  this->Salva();
  EXPECT_EQ(this->Keys(), keys);
  EXPECT_NE(this->Config(), before) << key;
  EXPECT_TRUE(this->Config().ends_with("\r\n[Other]\r\nLMP3=1\r\n"));
}

TYPED_TEST(ParameterFiles, WhatAnotherProgramAddedMeanwhileIsKept) {
  const char* key = ChangeOne(this->Open(kFull));
  const std::string own = "[Config]\r\n" + std::string(key) + "=1\r\nADDED=5\r\n";
  this->b.Cartella.Write(this->kConfig, own);
  this->Salva();
  EXPECT_EQ(this->Chiave("ADDED"), "5");
  EXPECT_NE(this->Chiave(key), "1");
}

class SerialDescriptor : public ParameterFiles<frmConfig485> {
 protected:
  void Tick() {
    Open(kFull);
    test::Clicca(*forma->chkUse485);
    forma->cmbCMBR->setCurrentIndex(0);
  }
};

TEST_F(SerialDescriptor, AReadOnlyOneStaysAsItIsAndTheRestIsSaved) {
  Tick();
  const std::string before = b.Cartella.Read(kDescriptor);
  fs::permissions(Host(kDescriptor), fs::perms::owner_read);
  b.C.Errore.Clear();
  Salva();
  EXPECT_EQ(b.Cartella.Read(kDescriptor), before);
  EXPECT_EQ(b.C.Errore.Last().Number(), 75);
  EXPECT_EQ(Chiave("CMBR"), "0");
  EXPECT_TRUE(b.C.Stato.Usa485) << "the inputs are taken until the project is opened again";
  EXPECT_FALSE(LeggiUse485(b.C));
  EXPECT_FALSE(Reopen().chkUse485->isChecked()) << "the file counts at the next load";
  EXPECT_FALSE(b.C.Stato.Usa485);
}

TEST_F(SerialDescriptor, IsWrittenWhereTheDeviceFileIsReadOnly) {
  Tick();
  const std::string before = Config();
  fs::permissions(Host(kConfig), fs::perms::owner_read);
  Salva();
  EXPECT_EQ(Config(), before);
  EXPECT_TRUE(LeggiUse485(b.C));
  EXPECT_TRUE(b.C.Stato.Usa485);
}

TEST_F(SerialDescriptor, KeepsItsOtherKeys) {
  Tick();
  const std::string before = b.Cartella.Read(kDescriptor);
  Salva();
  const std::string after = b.Cartella.Read(kDescriptor);
  EXPECT_TRUE(after.starts_with(before)) << after;
  EXPECT_EQ(after.substr(before.size()), "Use485=1\r\n");
}

}  // namespace
}  // namespace kvr5
