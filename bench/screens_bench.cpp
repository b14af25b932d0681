// How quick the screens are, as ratios of one run: the start against an empty window with one
// button, the hub of a full project against that of an empty one, the file pane of 5,000 files
// against reading the folder, each screen of parameters against an empty form with as many
// controls. Needs no display: QT_QPA_PLATFORM=offscreen is set where there is
// none.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/Programma.h"
#include "core/Impostazioni.h"
#include "core/screens/Tema.h"
#include "platform/db/Recordset.h"
#include "projects/NuovoProgetto.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double Milliseconds(const std::function<void()>& work) {
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Paint() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

class NoEnd : public kvr5::Processo {
 public:
  [[noreturn]] void Termina(kvr5::MotivoFine /*motivo*/) override { std::_Exit(EXIT_FAILURE); }
};

/// A copy of the staged program that may be written to.
class Staged {
 public:
  Staged() : path_(fs::temp_directory_path() / ("kvr5-bench-" + std::to_string(getpid()))) {
    fs::copy(KVR5_STAGED_PROGRAM, path_, fs::copy_options::recursive);
    std::ofstream(path_ / "KVR5Software.ini")
        << "[Config]\r\nUseExternalPlayer=0\r\nLanguageFile=English.lan\r\n[Path]\r\nProjectsDir="
        << (path_ / "Projects").string() << "\r\n";
  }
  ~Staged() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  Staged(const Staged&) = delete;
  Staged& operator=(const Staged&) = delete;
  std::string Path() const { return path_.string(); }

 private:
  fs::path path_;
};

/// What a process of its own does up to its first picture.
int Child(int argc, char** argv, const std::string& what, const std::string& folder) {
  QApplication application(argc, argv);
  if (what == "--empty") {
    QWidget window;
    auto* page = new QVBoxLayout(&window);
    page->addWidget(new QPushButton(QStringLiteral("Button"), &window));
    window.resize(820, 480);
    window.show();
    Paint();
    std::_Exit(EXIT_SUCCESS);
  }
  kvr5::ApplicaTema(application);
  NoEnd process;
  kvr5::Programma program(folder, process);
  program.Avvia({});
  program.Mostra(kvr5::Schermata::Menu);
  Paint();
  std::_Exit(EXIT_SUCCESS);
}

double RunChild(const char* self, const std::string& what, const std::string& folder) {
  return Milliseconds([&] {
    std::vector<std::string> words{self, what, folder};
    std::vector<char*> arguments;
    for (auto& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawn(&child, self, nullptr, nullptr, arguments.data(), environ) != 0) std::abort();
    int status = 0;
    if (waitpid(child, &status, 0) != child || status != 0) std::abort();
  });
}

void Start(const char* self, const std::string& folder) {
  std::vector<double> menu;
  std::vector<double> empty;
  for (int i = 0; i < 15; ++i) {
    empty.push_back(RunChild(self, "--empty", folder));
    menu.push_back(RunChild(self, "--menu", folder));
  }
  std::printf("start/empty window: %.2f (at most 1.5; %.0f and %.0f ms)\n",
              Median(menu) / Median(empty), Median(menu), Median(empty));
}

void MakeProject(kvr5::Contesto& context, const std::string& name) {
  auto& state = context.Stato;
  state.PlayerType = 4;
  state.PlayerMode = 1;
  state.PlayerName = "KVR5";
  state.PlayerConfigDesc = "KVR5 (Inputs)";
  if (kvr5::PreparaCartella(context, name, false) != kvr5::EsitoNuovo::Creato) std::abort();
  kvr5::RiempiCartella(context);
}

void Fill(kvr5::Contesto& context, const std::string& folder) {
  kvr5::TabellaIngressi inputs(context);
  inputs.Apri();
  fs::create_directory(context.Files.HostPath(folder));
  for (std::int16_t code = 1; code <= 255; ++code) {
    std::ofstream(context.Files.HostPath(folder + "\\track " + std::to_string(code) + ".mp3"))
        << "x";
    inputs.Assegna(code, "track " + std::to_string(code) + ".mp3", folder);
  }
  const std::string list = context.Stato.CartellaProgetto + "\\playlist.mdb";
  if (context.Files.Open(list, kvr5::OpenMode::New).Err()) std::abort();
  fs::copy_file(context.Files.HostPath(context.CartellaProgramma + "\\source.mdb"),
                context.Files.HostPath(list), fs::copy_options::overwrite_existing);
  kvr5::Connection connection(context.Files);
  if (connection.Open(list)) std::abort();
  const kvr5::Transaction run(connection);
  for (int i = 0; i < 20000; ++i) {
    kvr5::Ignora(connection.Execute(
        "INSERT INTO [LIST] ([Pos],[FileName],[FilePath],[Alias],[NPlaylist],[IDSched]) VALUES(" +
        std::to_string(i % 500 + 1) + ",'a.mp3','C:\\m\\','',1,0)"));
  }
}

void Hub(kvr5::Programma& program) {
  auto& context = program.C();
  MakeProject(context, "Empty");
  const std::string empty = context.Stato.CartellaProgetto;
  MakeProject(context, "Full");
  const std::string full = context.Stato.CartellaProgetto;
  const std::string music = context.CartellaProgramma + "\\Music";
  Fill(context, music);
  std::vector<double> times[2];
  for (int i = 0; i < 15; ++i) {
    for (const bool big : {false, true}) {
      context.Stato.CartellaProgetto = big ? full : empty;
      times[big ? 1 : 0].push_back(Milliseconds([&] {
        program.ApriConfigurazione(1);
        Paint();
      }));
      program.DimenticaConfigurazione();
    }
  }
  std::printf("hub of a full project/of an empty one: %.2f (at most 1.5; %.0f and %.0f ms)\n",
              Median(times[1]) / Median(times[0]), Median(times[1]), Median(times[0]));
}

void Pane(kvr5::Programma& program, const std::string& staged) {
  auto& context = program.C();
  const fs::path music = fs::path(staged) / "many";
  fs::create_directory(music);
  for (int i = 0; i < 5000; ++i) {
    std::ofstream(music / ("track " + std::to_string(i) + ".mp3")) << "x";
  }
  const auto path = context.Files.SystemPath(music.string());
  kvr5::PaneMp3 pane(context);
  pane.DirDirectoryMp3->ImpostaPercorso(context.CartellaProgramma);
  pane.show();
  Paint();
  std::vector<double> shown;
  std::vector<double> read;
  for (int i = 0; i < 15; ++i) {
    read.push_back(Milliseconds([&] { kvr5::Ignora(context.Files.List(path.Value()).Err()); }));
    shown.push_back(Milliseconds([&] {
      pane.DirDirectoryMp3->ImpostaPercorso(path.Value());
      Paint();
    }));
  }
  std::printf("pane of 5,000 files/reading the folder: %.2f (at most 2; %.1f and %.1f ms)\n",
              Median(shown) / Median(read), Median(shown), Median(read));
}

/// How many controls of a kind a window holds.
template <class T>
int CountOf(const QWidget& window) {
  const auto all = window.findChildren<QWidget*>();
  return static_cast<int>(std::count_if(all.begin(), all.end(), [](const QWidget* each) {
    return dynamic_cast<const T*>(each) != nullptr;
  }));
}

/// A form with as many controls of each kind as a screen has, frames included, in a window of its
/// size: captions, nothing behind them.
class EmptyForm : public QWidget {
 public:
  explicit EmptyForm(const QWidget& like) {
    auto* page = new QVBoxLayout(this);
    for (int i = CountOf<kvr5::Riquadro>(like); i > 0; --i) {
      auto* frame = new kvr5::Riquadro("fra", {}, -1, this);
      page->addWidget(frame);
      frames_.push_back(frame);
      grids_.push_back(new QGridLayout());
      frame->Corpo()->addLayout(grids_.back());
    }
    const QList<kvr5::Coppia*> pairs = like.findChildren<kvr5::Coppia*>();
    const auto captions = std::ranges::count_if(
        pairs, [](const kvr5::Coppia* pair) { return pair->Etichetta() != nullptr; });
    // Frames and pairs bring the labels of theirs along.
    Add<QLabel>(CountOf<QLabel>(like) - CountOf<kvr5::Riquadro>(like) - static_cast<int>(captions));
    Add<QComboBox>(CountOf<QComboBox>(like));
    Add<QLineEdit>(CountOf<QLineEdit>(like));
    Add<QSlider>(CountOf<QSlider>(like));
    Add<QCheckBox>(CountOf<QCheckBox>(like));
    Add<QToolButton>(CountOf<QToolButton>(like));
    for (const kvr5::Coppia* pair : pairs) {
      const char* label = pair->Etichetta() != nullptr ? "lbl" : "";
      Place(new kvr5::Coppia("pic", label, QStringLiteral("Caption"), "salva", -1, Next()));
    }
    resize(like.size());
  }

 private:
  template <class T>
  void Add(int count) {
    for (int i = count; i > 0; --i) {
      auto* control = new T(Next());
      if constexpr (requires { control->setText(QString()); }) {
        control->setText(QStringLiteral("Caption"));
      }
      if constexpr (requires { control->addItem(QString()); }) {
        control->addItem(QStringLiteral("Caption"));
      }
      Place(control);
    }
  }
  void Place(QWidget* control) {
    constexpr int kColumns = 4;
    const auto cell = static_cast<int>(placed_ / grids_.size());
    grids_[placed_ % grids_.size()]->addWidget(control, cell / kColumns, cell % kColumns);
    ++placed_;
  }
  QWidget* Next() const { return frames_[placed_ % frames_.size()]; }

  std::vector<QWidget*> frames_;
  std::vector<QGridLayout*> grids_;
  std::size_t placed_ = 0;
};

template <class T>
void Parameters(kvr5::Ambiente& ambiente, const char* name) {
  std::vector<double> loads;
  std::vector<double> empties;
  for (int i = 0; i < 25; ++i) {
    std::unique_ptr<T> form;
    loads.push_back(Milliseconds([&] {
      form = std::make_unique<T>(ambiente);
      form->Mostra();
      Paint();
    }));
    form->hide();
    std::unique_ptr<EmptyForm> empty;
    empties.push_back(Milliseconds([&] {
      empty = std::make_unique<EmptyForm>(*form);
      empty->show();
      Paint();
    }));
  }
  std::printf("%s/empty form: %.2f (at most 2; %.1f and %.1f ms)\n", name,
              Median(loads) / Median(empties), Median(loads), Median(empties));
}

/// The three screens of parameters. The serial one is that of an Ostrel: no notice comes first.
void Parameters(kvr5::Programma& program) {
  constexpr std::int16_t kOstrel = 3;
  kvr5::EsecutoreQt documents(program.C());
  kvr5::VitaForme life([] {});
  kvr5::Ambiente ambiente{program.C(), program, documents, life, program.Suono()};
  MakeProject(program.C(), "Parameters");
  Parameters<kvr5::frmTempiFade>(ambiente, "fades");
  Parameters<kvr5::frmPanelExtra>(ambiente, "extras");
  program.C().Stato.PlayerType = kOstrel;
  Parameters<kvr5::frmConfig485>(ambiente, "serial link");
}

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  setenv("QT_LOGGING_RULES", "*.warning=false", 0);
  if (argc == 3) return Child(argc, argv, argv[1], argv[2]);
  const Staged staged;
  Start(argv[0], staged.Path());
  QApplication application(argc, argv);
  kvr5::ApplicaTema(application);
  NoEnd process;
  kvr5::Programma program(staged.Path(), process);
  program.Avvia({});
  Hub(program);
  Pane(program, staged.Path());
  Parameters(program);
}
