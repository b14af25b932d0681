#include <QFileDialog>
#include <QHeaderView>
#include <QTest>
#include <QTreeView>

#include "core/screens/FinestreQt.h"
#include "core/screens/RiquadroMessaggio.h"
#include "core/screens/Testo.h"
#include "support/screens/ProvaForm.h"

namespace kvr5 {
namespace {

using namespace test;

class Cartelle : public testing::Test {
 protected:
  BancoSchermi b;
};

TEST_F(Cartelle, AChosenFolderComesInTheSystemsForm) {
  const Pilota<QFileDialog> pilot([this](QFileDialog& chooser) {
    EXPECT_EQ(chooser.windowTitle(), "Pick one");
    EXPECT_EQ(Std(chooser.directory().absolutePath()), b.Cartella.Host().string());
    ScegliCartella(chooser, (b.Cartella.Host() / "card").string());
  });
  EXPECT_EQ(b.C.Finestre.SfogliaCartella("Pick one", b.Percorso("")), b.Percorso("card"));
}

TEST_F(Cartelle, AFolderThatNoPathCanNameIsToldAndNotTaken) {
  const auto odd = b.Cartella.Host() / "Hall: 2";
  std::filesystem::create_directory(odd);
  const Pilota<QFileDialog> pilot(
      [&odd](QFileDialog& chooser) { ScegliCartella(chooser, odd.string()); });
  const Pilota<RiquadroMessaggio> told([](RiquadroMessaggio& box) {
    EXPECT_EQ(box.windowTitle(), "Folder not taken");
    Clicca(box, "cmdOk");
  });
  EXPECT_EQ(b.C.Finestre.SfogliaCartella("Pick one", b.Percorso("")), "");
}

TEST_F(Cartelle, TheChooserShowsItsDatesWhole) {
  std::filesystem::create_directory(b.Cartella.Host() / "a folder");
  const Pilota<QFileDialog> pilot([](QFileDialog& chooser) {
    auto* details = chooser.findChild<QTreeView*>(QStringLiteral("treeView"));
    ASSERT_NE(details, nullptr);
    constexpr int kDate = 3;
    const QModelIndex first = details->model()->index(0, 0, details->rootIndex());
    EXPECT_TRUE(QTest::qWaitFor([&] {
      const QModelIndex date = details->model()->index(0, kDate, details->rootIndex());
      const int wanted = details->fontMetrics().horizontalAdvance(date.data().toString());
      return wanted > 0 && details->columnWidth(kDate) >= wanted;
    }));
    EXPECT_GT(details->columnWidth(0), 200) << first.data().toString().toStdString();
    chooser.close();
  });
  b.C.Finestre.SfogliaCartella("Pick one", b.Percorso(""));
}

TEST_F(Cartelle, TheChoosersColumnsStayTheUsersForOtherPrograms) {
  const int kWidth = 137;
  const auto columns = [](const QFileDialog& chooser) {
    return chooser.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
  };
  const auto asOtherProgram = [&](const std::function<void(QHeaderView&)>& use) {
    QFileDialog other(nullptr, {}, QString::fromStdString(b.Cartella.Host().string()));
    other.setOption(QFileDialog::DontUseNativeDialog);
    other.show();
    use(*columns(other));
  };
  asOtherProgram([=](QHeaderView& header) { header.resizeSection(0, kWidth); });
  {
    const Pilota<QFileDialog> pilot([&](QFileDialog& chooser) {
      EXPECT_TRUE(QTest::qWaitFor(
          [&] { return columns(chooser)->sectionResizeMode(0) == QHeaderView::Stretch; }));
      chooser.close();
    });
    b.C.Finestre.SfogliaCartella("Pick one", b.Percorso(""));
  }
  asOtherProgram([=](const QHeaderView& header) {
    EXPECT_EQ(header.sectionSize(0), kWidth);
    for (const int column : {0, 3}) {
      EXPECT_EQ(header.sectionResizeMode(column), QHeaderView::Interactive) << column;
    }
  });
}

TEST_F(Cartelle, ACancelGivesTheEmptyText) {
  const Pilota<QFileDialog> pilot([](QFileDialog& chooser) { Tasto(chooser, Qt::Key_Escape); });
  EXPECT_EQ(b.C.Finestre.SfogliaCartella("Pick one", {}), "");
}

TEST_F(Cartelle, AStartThatIsGoneIsNoHindrance) {
  const Pilota<QFileDialog> pilot([](QFileDialog& chooser) { chooser.close(); });
  EXPECT_EQ(b.C.Finestre.SfogliaCartella("Pick one", b.Percorso("gone")), "");
}

}  // namespace
}  // namespace kvr5
