#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <chrono>
#include <optional>

#include "platform/VolumeEjector.h"
#include "platform/udisks/UDisksObjects.h"

namespace kvr5 {

/// How long UDisks2 may take for an answer.
struct UDisksLimits {
  std::chrono::milliseconds Question{2000};  ///< of a question, for which somebody waits
  std::chrono::milliseconds Work{std::chrono::minutes(5)};  ///< of one that writes to a card
};

/// The host's service of disks, UDisks2 (udisks.freedesktop.org), by the bus of the system. It is
/// asked only where it runs, and never started. A program without it goes on at once.
class UDisks : public VolumeEjector {
 public:
  explicit UDisks(QDBusConnection bus = QDBusConnection::systemBus(), UDisksLimits limits = {});

  bool CanEject(const Drive& drive) const override;
  void Eject(const Drive& drive, std::function<void(const Error&)> done) override;
  /// What the service tells now; nothing where there is none, or none that answers in time.
  std::optional<UDisksObjects> Look() const;

 private:
  QDBusConnection bus_;
  UDisksLimits limits_;
  QObject jobs_;  ///< the parent of what is under way
};

}  // namespace kvr5
