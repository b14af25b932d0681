#pragma once

#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace kvr5::test {

/// A stand-in for UDisks2 with devices of the test's choice. It answers in a thread of its own, as
/// the real one does in its process, and knows objects by the last part of their paths.
class FakeUDisks : public QDBusVirtualObject {
 public:
  struct Block {
    std::string Label = {};
    std::string Drive = {};
    std::string Backing = {};
    std::vector<std::string> MountPoints = {};
  };
  struct Refusal {
    std::string Name;
    std::string Words;
  };

  explicit FakeUDisks(QDBusConnection bus);
  ~FakeUDisks() override;

  void SetBlock(const std::string& name, const Block& block);
  void Remove(const std::string& name);
  void SetDrive(const std::string& name, bool canEject);
  /// Has a call refused, such as "Unmount sdb1".
  void Refuse(const std::string& call, const Refusal& refusal);
  /// Has what is given run before a call is answered, on the way of the service.
  void Before(const std::string& call, std::function<void()> what);
  /// Keeps the answers to a call back until they are released.
  void Hold(const std::string& call);
  void Release();
  /// Leaves the bus, as if it had crashed.
  void Leave();
  /// All calls so far, such as "GetManagedObjects UDisks2".
  std::vector<std::string> Calls() const;
  bool WasCalled(const std::string& call) const;

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

 private:
  QDBusMessage Answer(const std::string& call, const QDBusMessage& message);
  QVariant Tree() const;

  QDBusConnection bus_;
  QThread thread_;
  mutable std::recursive_mutex mutex_;
  std::map<std::string, Block> blocks_;
  std::map<std::string, bool> drives_;
  std::map<std::string, Refusal> refused_;
  std::map<std::string, std::function<void()>> before_;
  std::vector<std::string> held_;
  std::vector<QDBusMessage> kept_;
  std::vector<std::string> calls_;
};

}  // namespace kvr5::test
