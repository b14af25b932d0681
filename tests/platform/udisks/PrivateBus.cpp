#include "PrivateBus.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QtCore/QProcessEnvironment>
#include <QtCore/QStandardPaths>
#include <QtDBus/QDBusError>

namespace kvr5::test {

bool PrivateBus::IsInstalled() {
  return !QStandardPaths::findExecutable("dbus-daemon").isEmpty();
}

PrivateBus::PrivateBus() {
  std::filesystem::create_directories(folder_.Host() / "dbus-1/services");
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_DATA_HOME", QString::fromStdString(folder_.Host().string()));
  daemon_.setProcessEnvironment(environment);
  // A test that crashes leaves no bus behind.
  daemon_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  daemon_.start("dbus-daemon", {"--session", "--print-address", "--nofork"});
  while (!daemon_.canReadLine() && daemon_.waitForReadyRead()) {
  }
  address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  EXPECT_FALSE(address_.isEmpty()) << daemon_.readAllStandardError().toStdString();
}

PrivateBus::~PrivateBus() {
  for (const QString& name : connections_) QDBusConnection::disconnectFromBus(name);
  Stop();
}

QDBusConnection PrivateBus::Connect() {
  static int count = 0;
  connections_.push_back("test" + QString::number(++count));
  QDBusConnection connection = QDBusConnection::connectToBus(address_, connections_.back());
  EXPECT_TRUE(connection.isConnected()) << connection.lastError().message().toStdString();
  return connection;
}

void PrivateBus::Stop() {
  daemon_.kill();
  daemon_.waitForFinished();
}

void PrivateBus::OfferToStart(const std::string& service) {
  folder_.Write("dbus-1/services/" + service + ".service",
                "[D-BUS Service]\nName=" + service + "\nExec=/usr/bin/touch " +
                    (folder_.Host() / "started").string() + "\n");
}

}  // namespace kvr5::test
