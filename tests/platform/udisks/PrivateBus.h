#pragma once

#include <QtCore/QProcess>
#include <QtDBus/QDBusConnection>
#include <list>

#include "support/TempFolder.h"

namespace kvr5::test {

/// A message bus of one test, gone with it.
class PrivateBus {
 public:
  /// False where there is no dbus-daemon.
  static bool IsInstalled();

  PrivateBus();
  ~PrivateBus();
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;

  /// A new connection to it.
  QDBusConnection Connect();
  /// Ends it, as if the system went down.
  void Stop();
  /// Makes it a service that can be started, and leaves a file behind when it is.
  void OfferToStart(const std::string& service);
  bool HasStartedOne() const { return folder_.Exists("started"); }

 private:
  TempFolder folder_;
  QProcess daemon_;
  QString address_;
  std::list<QString> connections_;
};

}  // namespace kvr5::test
