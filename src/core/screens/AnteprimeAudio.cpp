#include "core/screens/AnteprimeAudio.h"

#include <QMetaObject>
#include <QObject>
#include <atomic>

#include "core/Registro.h"
#include "platform/audio/Mp3Player.h"

namespace kvr5 {

class AnteprimeAudio::Lettore : public Anteprima {
 public:
  explicit Lettore(AnteprimeAudio& tutte)
      : tutte_(tutte), player_(tutte.contesto_.Files, tutte.suono_) {
    // In the device's thread; what was posted goes with the receiver.
    player_.OnEnd = [this] {
      QMetaObject::invokeMethod(
          &ricevente_, [this, turn = turno_.load()] { Finita(turn); }, Qt::QueuedConnection);
    };
  }
  ~Lettore() override { player_.Close(); }
  Lettore(const Lettore&) = delete;
  Lettore& operator=(const Lettore&) = delete;

  Error Open(const std::string& file) override {
    Close();
    Error error = player_.Open(file);
    if (player_.NoDevice()) tutte_.Annota(error);
    return error;
  }
  Error Play() override { return player_.Play(); }
  void Stop() override {
    player_.Stop();
    ++turno_;
  }
  void Close() override {
    player_.Close();
    ++turno_;
  }

 private:
  void Finita(unsigned turno) {
    const auto tell = SuNotifica;  // who hears it may let this player go
    if (turno == turno_ && tell) tell(kFinita);
  }

  AnteprimeAudio& tutte_;
  QObject ricevente_;
  std::atomic<unsigned> turno_ = 0;  ///< an end that was told before a stop is none any more
  Mp3Player player_;
};

std::unique_ptr<Anteprima> AnteprimeAudio::Nuova() {
  return std::make_unique<Lettore>(*this);
}

void AnteprimeAudio::Annota(const Error& error) {
  if (annotato_) return;
  annotato_ = true;
  ScriviLog(contesto_, "Nothing can be listened to in this program: " + error.Description());
}

}  // namespace kvr5
