#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <functional>
#include <string>
#include <vector>

#include "platform/udisks/UDisks.h"

namespace kvr5 {

/// One ejection under way, which goes from answer to answer of the service and deletes itself in
/// the end: look, unmount all volumes of the medium, look again, eject.
///
/// The card's own volume is unmounted last, so that a failure leaves a drive that the user can try
/// again.
class EjectJob : public QObject {
 public:
  EjectJob(QDBusConnection bus, UDisksLimits limits, const Drive& drive,
           std::function<void(const Error&)> done, QObject* parent);

  void Start();

 private:
  using Next = std::function<void(const QDBusMessage&)>;

  void Ask(QDBusMessage message, std::chrono::milliseconds limit, const Next& next);
  void Look(const Next& next);
  void Call(const std::string& path, const char* interface, const char* method, const Next& next);
  void Plan(const QDBusMessage& reply);
  void UnmountNext();
  void Unmounted(const QDBusMessage& reply);
  void EjectMedium(const QDBusMessage& reply);
  void Finish(const Error& error);

  QDBusConnection bus_;
  UDisksLimits limits_;
  std::string path_;   ///< the volume's object
  std::string mount_;  ///< where it is mounted
  std::function<void(const Error&)> done_;
  std::vector<std::string> mounted_;  ///< what is still to be unmounted, from the front
};

/// The number for an error of the bus or of UDisks2, with its own words; 0 for an answer.
Error ErrorOf(const QDBusMessage& reply);

}  // namespace kvr5
