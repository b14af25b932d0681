#include "core/screens/TestiQt.h"

#include <QThread>
#include <array>
#include <string_view>

#include "core/Lingua.h"
#include "core/screens/Testo.h"

namespace kvr5 {
namespace {

struct TestoDelToolkit {
  std::string_view Testo;
  std::string_view Chiave;
};

/// The toolkit's texts that the screens can show, whatever part of it they come from.
constexpr std::array kTesti = {
    TestoDelToolkit{"&Undo", "0130201"},
    TestoDelToolkit{"&Redo", "0130202"},
    TestoDelToolkit{"Cu&t", "0130203"},
    TestoDelToolkit{"&Copy", "0130204"},
    TestoDelToolkit{"&Paste", "0130205"},
    TestoDelToolkit{"Delete", "0130206"},
    TestoDelToolkit{"&Delete", "0130206"},
    TestoDelToolkit{"Select All", "0130207"},
    TestoDelToolkit{"Directory:", "0130208"},
    TestoDelToolkit{"Folder", "0130245"},
    TestoDelToolkit{"Drive", "0130246"},
    TestoDelToolkit{"&Choose", "0130209"},
    TestoDelToolkit{"Cancel", "0130210"},
    TestoDelToolkit{"&Cancel", "0130210"},
    TestoDelToolkit{"Look in:", "0130211"},
    TestoDelToolkit{"Back", "0130212"},
    TestoDelToolkit{"Go back", "0130212"},
    TestoDelToolkit{"Forward", "0130213"},
    TestoDelToolkit{"Go forward", "0130213"},
    TestoDelToolkit{"Parent Directory", "0130214"},
    TestoDelToolkit{"Go to the parent directory", "0130214"},
    TestoDelToolkit{"Create New Folder", "0130215"},
    TestoDelToolkit{"Create a New Folder", "0130215"},
    TestoDelToolkit{"&New Folder", "0130215"},
    TestoDelToolkit{"New Folder", "0130215"},
    TestoDelToolkit{"List View", "0130216"},
    TestoDelToolkit{"Change to list view mode", "0130216"},
    TestoDelToolkit{"Detail View", "0130217"},
    TestoDelToolkit{"Change to detail view mode", "0130217"},
    TestoDelToolkit{"Sidebar", "0130218"},
    TestoDelToolkit{"List of places and bookmarks", "0130218"},
    TestoDelToolkit{"Files", "0130219"},
    TestoDelToolkit{"Files of type:", "0130220"},
    TestoDelToolkit{"Directories", "0130221"},
    TestoDelToolkit{"Name", "0130222"},
    TestoDelToolkit{"Size", "0130223"},
    TestoDelToolkit{"Type", "0130224"},
    TestoDelToolkit{"Kind", "0130224"},
    TestoDelToolkit{"Date Modified", "0130225"},
    TestoDelToolkit{"Computer", "0130226"},
    TestoDelToolkit{"&Rename", "0130227"},
    TestoDelToolkit{"Show &hidden files", "0130228"},
    TestoDelToolkit{"Remove", "0130229"},
    TestoDelToolkit{"Recent Places", "0130248"},
    TestoDelToolkit{"OK", "0130093"},
    TestoDelToolkit{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
                    "0130247"},
};

}  // namespace

void TestiQt::LeggiSeCambiata() const {
  const std::string& file = contesto_->Stato.FileLingua;
  constexpr qint64 kPause = 2000;  // milliseconds before one that had no words is tried again
  if (letta_ == file && (!testi_.empty() || !lettura_.hasExpired(kPause))) return;
  letta_ = file;
  lettura_.start();
  testi_.clear();
  for (const auto& each : kTesti) {
    const std::string text = TestoLingua(*contesto_, each.Chiave);
    if (!text.empty()) testi_.emplace(each.Testo, Qs(text));
  }
}

QString TestiQt::translate(const char* /*contesto*/, const char* testo, const char* /*disambigua*/,
                           int /*numero*/) const {
  const std::scoped_lock lock(guardia_);
  if (QThread::currentThread() == thread()) LeggiSeCambiata();
  const auto found = testi_.find(testo);
  return found == testi_.end() ? QString() : found->second;
}

}  // namespace kvr5
