#include "playerconfig/screens/BancoParametri.h"
#include "playerconfig/screens/Lettera.h"
#include "playerconfig/screens/frmTempiFade.h"

// The captions on the drawing of the fades, which no layout places.

namespace kvr5 {
namespace {

class FadeDrawing : public test::ProvaParametri<frmTempiFade>,
                    public testing::WithParamInterface<const char*> {
 protected:
  frmTempiFade& Open() {
    b.C.Stato.FileLingua = b.Percorso(std::string("program/Language/") + GetParam());
    Progetto(4, 1);
    return Apri();
  }
  void Resize(QSize size) {
    forma->resize(size);
    for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
  }
  std::vector<const QLabel*> Captions() {
    const GraficoFade& drawing = *forma->picGrafico;
    return {drawing.lblTime,      drawing.lblAudioLevel, drawing.lblLineInputMixed,
            drawing.lblLineInput, drawing.lblSpot,       drawing.lblSpotAnticipo,
            drawing.lblBrano};
  }
  /// What a caption takes up on the drawing, the letter in front of it too.
  QRect Place(const QLabel& caption) {
    constexpr int kGap = 6;
    const bool letter =
        &caption == forma->picGrafico->lblLineInputMixed || &caption == forma->picGrafico->lblSpot;
    return caption.geometry().adjusted(letter ? -(kLatoLettera + kGap) : 0, 0, 0, 0);
  }
  void ExpectEachInItsPlace() {
    SCOPED_TRACE(std::to_string(forma->width()) + "x" + std::to_string(forma->height()));
    const auto captions = Captions();
    for (std::size_t i = 0; i < captions.size(); ++i) {
      const QLabel& one = *captions[i];
      EXPECT_TRUE(one.isVisible());
      EXPECT_FALSE(one.text().isEmpty());
      EXPECT_TRUE(forma->picGrafico->rect().contains(Place(one)))
          << one.objectName().toStdString() << " sticks out";
      EXPECT_GE(one.width(), one.sizeHint().width()) << one.objectName().toStdString();
      for (std::size_t k = i + 1; k < captions.size(); ++k) {
        EXPECT_FALSE(Place(one).intersects(Place(*captions[k])))
            << one.objectName().toStdString() << " on " << captions[k]->objectName().toStdString();
      }
    }
  }
};

TEST_P(FadeDrawing, NoCaptionLiesOnAnotherOneOrSticksOut) {
  Open();
  ExpectEachInItsPlace();
}

TEST_P(FadeDrawing, TheCaptionsKeepTheirPlacesAtAnySize) {
  Open();
  for (const QSize size : {forma->minimumSizeHint(), QSize(944, 500), QSize(1900, 1000)}) {
    Resize(size);
    ExpectEachInItsPlace();
  }
}

INSTANTIATE_TEST_SUITE_P(
    Languages, FadeDrawing, testing::Values("English.lan", "Italiano.lan", "none.lan"),
    [](const auto& each) {
      return std::string(each.param).substr(0, std::string(each.param).find('.'));
    });

}  // namespace
}  // namespace kvr5
