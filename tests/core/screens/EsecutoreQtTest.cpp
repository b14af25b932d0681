#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QUrl>

#include "core/screens/EsecutoreQt.h"
#include "support/Banco.h"

namespace kvr5 {

/// Takes the documents that are opened in the desktop's place.
class Desktop : public QObject {
  Q_OBJECT
 public:
  Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Take"); }
  ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  Q_SLOT void Take(const QUrl& url) { Last = url; }
  QUrl Last;
};

namespace {

TEST(Opener, GivesTheDesktopEachNameAsItIs) {
  test::Banco b;
  Desktop desktop;
  EsecutoreQt opener(b.C);
  for (const char* name :
       {"a b.mp3", "50%20.mp3", "#1.mp3", "L'été.mp3", "a&b;c.mp3", "日本.mp3"}) {
    b.Cartella.Write(std::string("music/") + name, "x");
    EXPECT_TRUE(opener.Apri(b.Percorso("music") + "\\" + name, " /PLAY"));
    EXPECT_EQ(desktop.Last.toLocalFile().toStdString(),
              (b.Cartella.Host() / "music" / name).string());
  }
}

TEST(Opener, TellsWhereAPageLiesThatNothingOpens) {
  test::Banco b;
  EsecutoreQt opener(b.C);
  EXPECT_FALSE(opener.Apri(b.Percorso("program/Help") + "\\English.htm"));
  const auto box = b.Finestre.Prossimo();
  EXPECT_EQ(box.Titolo, "It could not be opened");
  EXPECT_EQ(
      box.Testo,
      "Perhaps this computer has no program for it, such as a browser or a file manager. It lies "
      "here: " +
          (b.Cartella.Host() / "program/Help/English.htm").string());
}

}  // namespace
}  // namespace kvr5

#include "EsecutoreQtTest.moc"
