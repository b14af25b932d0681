#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QTest>
#include <map>

#include "flashcard/screens/VociScheda.h"
#include "flashcard/screens/frmSelectFlash.h"
#include "support/screens/BancoSchermi.h"
#include "support/screens/Mano.h"
#include "support/screens/Pilota.h"

// Cards that are put in and taken out while the dialog that asks for one stands.

namespace kvr5 {
namespace {

using test::Pilota;

/// Readers of a test: a letter for each that the host has, and whether a card is in it.
class Readers : public SorgenteDrive {
 public:
  void PutIn(char letter, const std::string& label = {}) {
    Drive card;
    card.Letter = letter;
    card.Label = label.empty() ? std::string("CARD-") + letter : label;
    card.Size = 2000000000;
    card.Free = 1000000000;
    cards_[letter] = card;
  }
  /// The reader is left empty; the host knows it still.
  void Empty(char letter) { cards_.at(letter).HasMedium = false; }
  /// The host knows nothing of the drive any more.
  void TakeAway(char letter) { cards_.erase(letter); }

  std::vector<std::string> Voci() override {
    std::vector<std::string> entries;
    for (const auto& [letter, card] : cards_) {
      entries.push_back(std::string(1, static_cast<char>(letter - 'A' + 'a')) + ":");
    }
    return entries;
  }
  std::uint32_t Tipo(const std::string& root) override {
    return Find(root) == nullptr ? tipo_drive::Sconosciuto : tipo_drive::Rimovibile;
  }
  Error Elenca(const std::string& root) override {
    const Drive* card = Find(root);
    return card != nullptr && card->HasMedium ? Error() : Error(errors::BadFileName);
  }
  std::vector<Drive> Fatti() override {
    std::vector<Drive> all;
    for (const auto& [letter, card] : cards_) all.push_back(card);
    return all;
  }

 private:
  const Drive* Find(const std::string& root) const {
    const char letter = root[0] >= 'a' ? static_cast<char>(root[0] - 'a' + 'A') : root[0];
    const auto at = cards_.find(letter);
    return at == cards_.end() ? nullptr : &at->second;
  }
  std::map<char, Drive> cards_;
};

class CardsComeAndGo : public testing::Test {
 protected:
  ~CardsComeAndGo() override { delete form; }
  /// Shows the dialog with the cards E and G; `use` works on it while it waits.
  void Show(const std::function<void()>& use) {
    readers.PutIn('E');
    readers.PutIn('G');
    form = new frmSelectFlash(b.A, readers);
    form->FormChiamante = Schermata::ElencoProgetti;
    const Pilota<frmSelectFlash> user([&](frmSelectFlash& /*dialog*/) { use(); });
    form->MostraModale();
  }
  std::string Items() const {
    std::string all;
    for (int i = 0; i < form->cmdFlash->count(); ++i) {
      all += form->cmdFlash->itemText(i).toStdString();
    }
    return all;
  }
  /// Waits until the list holds these items.
  void Await(const std::string& items) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Items() == items; })) << Items();
  }
  std::string Chosen() const { return form->cmdFlash->currentText().toStdString(); }
  std::string Facts() const { return form->lblFatti->text().toStdString(); }
  std::string FactsOfItem(int item) const {
    return form->cmdFlash->itemData(item, VociScheda::Fatti).toString().toStdString();
  }
  /// The item of the open list that Enter would take.
  std::string Marked() const {
    return form->cmdFlash->view()->currentIndex().data().toString().toStdString();
  }
  void OpenList() {
    form->cmdFlash->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form->cmdFlash->view()->window()));
  }
  void KeyInList(Qt::Key key) { QTest::keyClick(form->cmdFlash->view(), key); }
  void Cancel() { test::Clicca(*form->picCancel); }

  test::BancoSchermi b;
  Readers readers;
  QPointer<frmSelectFlash> form;
};

TEST_F(CardsComeAndGo, ACardThatComesTakesItsPlaceAndTheFirstOneStaysChosen) {
  Show([this] {
    EXPECT_EQ(Chosen(), "E:\\");
    readers.PutIn('F');
    readers.PutIn('D');
    Await("D:\\E:\\F:\\G:\\");
    EXPECT_EQ(Chosen(), "E:\\") << "what Enter takes is what was shown before";
    EXPECT_TRUE(FactsOfItem(0).starts_with("CARD-D"));
    EXPECT_TRUE(FactsOfItem(2).starts_with("CARD-F"));
    EXPECT_TRUE(Facts().starts_with("CARD-E"));
    test::Tasto(*form, Qt::Key_Return);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "E:\\");
}

TEST_F(CardsComeAndGo, TheChoiceByKeysStaysWithItsCardAndSoDoesTheKeyboard) {
  Show([this] {
    test::Tasto(*form, Qt::Key_Down);
    ASSERT_EQ(Chosen(), "G:\\");
    readers.TakeAway('E');
    Await("G:\\");
    EXPECT_EQ(Chosen(), "G:\\");
    readers.PutIn('E');
    readers.PutIn('H');
    Await("E:\\G:\\H:\\");
    EXPECT_EQ(Chosen(), "G:\\");
    EXPECT_EQ(form->focusWidget(), form->cmdFlash);
    test::Tasto(*form, Qt::Key_Down);
    EXPECT_EQ(Chosen(), "H:\\") << "the next one by its place";
    test::Tasto(*form, Qt::Key_Return);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "H:\\");
}

TEST_F(CardsComeAndGo, TheChosenOneThatGoesStaysChosenAndSaysSoUntilItIsBack) {
  Show([this] {
    readers.TakeAway('E');
    EXPECT_TRUE(QTest::qWaitFor([this] { return Facts() == "taken out: put it back in"; }));
    EXPECT_EQ(Items(), "E:\\G:\\");
    EXPECT_EQ(Chosen(), "E:\\") << "nobody records on another card unasked";
    EXPECT_EQ(FactsOfItem(0), "taken out: put it back in");
    readers.PutIn('E', "BACK");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Facts().starts_with("BACK"); })) << Facts();
    EXPECT_EQ(Chosen(), "E:\\");
    Cancel();
  });
}

TEST_F(CardsComeAndGo, AChosenReaderThatIsEmptiedSaysThatNoCardIsInIt) {
  Show([this] {
    readers.Empty('E');
    EXPECT_TRUE(QTest::qWaitFor([this] { return Facts() == "CARD-E, no card in it"; })) << Facts();
    EXPECT_EQ(form->lblContenuto->text(), "");
    EXPECT_EQ(Chosen(), "E:\\");
    readers.Empty('G');
    Await("E:\\");
    readers.PutIn('G');
    Await("E:\\G:\\");
    EXPECT_EQ(Chosen(), "E:\\");
    Cancel();
  });
}

TEST_F(CardsComeAndGo, WithAllCardsGoneTheDialogStaysAndTakesNoneByItself) {
  Show([this] {
    readers.TakeAway('E');
    readers.TakeAway('G');
    Await("E:\\");
    EXPECT_TRUE(form->isVisible());
    readers.PutIn('Z');
    Await("E:\\Z:\\");
    EXPECT_EQ(Chosen(), "E:\\");
    test::Tasto(*form, Qt::Key_Down);
    EXPECT_EQ(Chosen(), "Z:\\");
    Await("E:\\Z:\\");
    Cancel();
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "");
  EXPECT_TRUE(b.C.Stato.SelezioneFlashAnnullata);
}

TEST_F(CardsComeAndGo, AnotherChoiceLetsTheOneThatWentGo) {
  Show([this] {
    readers.TakeAway('E');
    EXPECT_TRUE(QTest::qWaitFor([this] { return Facts() == "taken out: put it back in"; }));
    test::Tasto(*form, Qt::Key_Down);
    EXPECT_EQ(Chosen(), "G:\\");
    Await("G:\\");
    EXPECT_EQ(Chosen(), "G:\\");
    test::Clicca(*form->picOk);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "G:\\");
}

TEST_F(CardsComeAndGo, InTheOpenListWhatIsMarkedStaysMarkedWhenCardsComeAndGoAroundIt) {
  Show([this] {
    OpenList();
    KeyInList(Qt::Key_Down);
    ASSERT_EQ(Marked(), "G:\\");
    readers.PutIn('D');
    readers.PutIn('F');
    Await("D:\\E:\\F:\\G:\\");
    EXPECT_TRUE(form->cmdFlash->view()->isVisible());
    EXPECT_EQ(Marked(), "G:\\");
    EXPECT_EQ(Chosen(), "E:\\") << "not chosen yet";
    readers.TakeAway('D');
    readers.TakeAway('F');
    Await("E:\\G:\\");
    EXPECT_EQ(Marked(), "G:\\");
    KeyInList(Qt::Key_Return);
    EXPECT_EQ(Chosen(), "G:\\");
    test::Clicca(*form->picOk);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "G:\\");
}

TEST_F(CardsComeAndGo, WhatIsMarkedInTheOpenListAndGoesIsNotTakenByEnter) {
  Show([this] {
    OpenList();
    KeyInList(Qt::Key_Down);
    ASSERT_EQ(Marked(), "G:\\");
    readers.TakeAway('G');
    Await("E:\\");
    EXPECT_EQ(Chosen(), "E:\\");
    KeyInList(Qt::Key_Return);
    EXPECT_EQ(Chosen(), "E:\\");
    Cancel();
  });
}

TEST_F(CardsComeAndGo, EscClosesTheOpenListAndTheDialogStays) {
  Show([this] {
    OpenList();
    KeyInList(Qt::Key_Down);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    test::Tasto(*form, Qt::Key_Escape);  // as the keyboard gives it: to the window in front
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(form->cmdFlash->view()->isVisible());
    EXPECT_FALSE(form->Scaricata()) << "it was the list that was left";
    EXPECT_EQ(Chosen(), "E:\\");
    form->Scarica();
  });
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
}

TEST_F(CardsComeAndGo, FloppyLettersNeverJoin) {
  Show([this] {
    readers.PutIn('B');
    readers.PutIn('F');
    Await("E:\\F:\\G:\\");
    Cancel();
  });
}

TEST_F(CardsComeAndGo, ConfirmingACardThatWentStoresItsRootForTheWorkToTell) {
  Show([this] {
    readers.TakeAway('E');
    EXPECT_TRUE(QTest::qWaitFor([this] { return Facts() == "taken out: put it back in"; }));
    test::Clicca(*form->picOk);
  });
  EXPECT_EQ(b.C.Stato.PercorsoMemoryCard, "E:\\");
  EXPECT_FALSE(b.C.Stato.SelezioneFlashAnnullata);
  EXPECT_EQ(b.Schermi.PercorsiAggiornati, 0) << "the list of projects shows no card";
}

}  // namespace
}  // namespace kvr5
