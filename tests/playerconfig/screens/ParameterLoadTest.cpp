#include <QCheckBox>
#include <filesystem>
#include <optional>

#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/frmConfig485.h"
#include "playerconfig/screens/frmPanelExtra.h"
#include "playerconfig/screens/frmTempiFade.h"

// The pointer while the screens of parameters are loaded, seen from the steps of the load.

namespace kvr5 {
namespace {

/// A list that the file sets away from its first item.
QComboBox& ListOf(frmTempiFade& form) {
  return *form.cmbTAVC;
}
QComboBox& ListOf(frmPanelExtra& form) {
  return *form.cmbRSPL;
}
QComboBox& ListOf(frmConfig485& form) {
  return *form.cmbORI3;
}

template <class T>
class ParameterLoad : public test::ProvaParametri<T> {
 protected:
  static constexpr bool kNotice = std::is_same_v<T, frmConfig485>;
  using test::ProvaParametri<T>::b;
  using test::ProvaParametri<T>::forma;

  /// Looks at the pointer at each step that the form to come will take.
  void Watch() {
    T& form = *forma;
    const auto look = [this] { busy_.push_back(test::PuntatoreOccupato()); };
    QObject::connect(&form, &QWidget::windowTitleChanged, &form, [this, look, &form] {
      look();
      titled_ = true;
      const auto event = [this] { ranBusy_ = test::PuntatoreOccupato(); };
      QMetaObject::invokeMethod(&form, event, Qt::QueuedConnection);
    });
    QComboBox& list = ListOf(form);
    QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, &form, [this, look] {
      look();
      filled_ = true;
    });
    QObject::connect(&list, &QComboBox::currentIndexChanged, &form, [this, look](int index) {
      look();
      if (index > 0) read_ = true;
    });
  }
  void ExpectBusyAllTheWay() {
    EXPECT_TRUE(titled_ && filled_ && read_);
    EXPECT_EQ(ranBusy_, false) << "events ran amid the load";
    for (std::size_t i = 0; i < busy_.size(); ++i) EXPECT_TRUE(busy_[i]) << "step " << i;
  }

  std::vector<bool> busy_;
  std::optional<bool> ranBusy_;
  bool titled_ = false, filled_ = false, read_ = false;
};

using Screens = testing::Types<frmTempiFade, frmPanelExtra, frmConfig485>;
TYPED_TEST_SUITE(ParameterLoad, Screens);

TYPED_TEST(ParameterLoad, ThePointerIsBusyFromTheTextsToTheLastValueAndNoLonger) {
  this->Progetto(4, 1);
  this->ScriviConfig("LMP3=5\r\nTAVC=2\r\nRSPL=9\r\nORI3=1\r\n");
  this->b.C.Stato.FileLingua = this->b.Percorso("program/Language/Italiano.lan");  // a new title
  bool afterwards = false;
  this->b.Finestre.SuBox = [&](const test::BoxVisto&) { afterwards = test::PuntatoreOccupato(); };
  this->Watch();
  this->Apri();
  this->ExpectBusyAllTheWay();
  EXPECT_FALSE(afterwards) << "a notice comes when the pointer is normal again";
  EXPECT_FALSE(test::PuntatoreOccupato());
  if (this->kNotice) this->b.Finestre.Prossimo();
  EXPECT_TRUE(this->b.Finestre.Silenzio());
}

TYPED_TEST(ParameterLoad, AMissingFileIsToldAmidTheLoadAndTheLinksNoticeAfterIt) {
  this->Progetto(4, 1);
  std::filesystem::remove(this->b.Cartella.Host() / this->kConfig);
  std::vector<bool> busy;
  this->b.Finestre.SuBox = [&](const test::BoxVisto&) {
    busy.push_back(test::PuntatoreOccupato());
  };
  this->Apri();
  EXPECT_EQ(busy, this->kNotice ? (std::vector{true, false}) : std::vector{true});
  EXPECT_EQ(this->b.Finestre.Prossimo().Titolo, "Configuration file not found");
  if (this->kNotice) this->b.Finestre.Prossimo();
  EXPECT_TRUE(this->b.Finestre.Silenzio()) << "it is told once";
  EXPECT_FALSE(test::PuntatoreOccupato());
  EXPECT_EQ(this->Config(), "[Config]\r\n");
}

}  // namespace
}  // namespace kvr5
