#include "FakeUDisks.h"

#include <gtest/gtest.h>

#include <QtCore/QByteArrayList>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>
#include <algorithm>

using FakeInterfaces = QMap<QString, QVariantMap>;
using FakeTree = QMap<QDBusObjectPath, FakeInterfaces>;
Q_DECLARE_METATYPE(FakeInterfaces)
Q_DECLARE_METATYPE(FakeTree)

namespace kvr5::test {
namespace {

constexpr const char* kService = "org.freedesktop.UDisks2";
constexpr const char* kRoot = "/org/freedesktop/UDisks2";

QVariant PathTo(const std::string& folder, const std::string& name) {
  const std::string path = name.empty() ? "/" : kRoot + folder + name;
  return QVariant::fromValue(QDBusObjectPath(QString::fromStdString(path)));
}

}  // namespace

FakeUDisks::FakeUDisks(QDBusConnection bus) : bus_(std::move(bus)) {
  qDBusRegisterMetaType<QByteArrayList>();
  qDBusRegisterMetaType<FakeInterfaces>();
  qDBusRegisterMetaType<FakeTree>();
  moveToThread(&thread_);
  thread_.start();
  const auto listen = [this] {
    EXPECT_TRUE(bus_.registerVirtualObject(kRoot, this, QDBusConnection::SubPath));
  };
  QMetaObject::invokeMethod(this, listen, Qt::BlockingQueuedConnection);
  EXPECT_TRUE(bus_.registerService(kService));
}

FakeUDisks::~FakeUDisks() {
  if (bus_.isConnected()) bus_.unregisterService(kService);
  bus_.unregisterObject(kRoot, QDBusConnection::UnregisterTree);
  thread_.quit();
  thread_.wait();
}

void FakeUDisks::SetBlock(const std::string& name, const Block& block) {
  const std::lock_guard lock(mutex_);
  blocks_[name] = block;
}

void FakeUDisks::Remove(const std::string& name) {
  const std::lock_guard lock(mutex_);
  blocks_.erase(name);
}

void FakeUDisks::SetDrive(const std::string& name, bool canEject) {
  const std::lock_guard lock(mutex_);
  drives_[name] = canEject;
}

void FakeUDisks::Refuse(const std::string& call, const Refusal& refusal) {
  const std::lock_guard lock(mutex_);
  refused_[call] = refusal;
}

void FakeUDisks::Before(const std::string& call, std::function<void()> what) {
  const std::lock_guard lock(mutex_);
  before_[call] = std::move(what);
}

void FakeUDisks::Hold(const std::string& call) {
  const std::lock_guard lock(mutex_);
  held_.push_back(call);
}

void FakeUDisks::Release() {
  const std::lock_guard lock(mutex_);
  held_.clear();
  for (const QDBusMessage& reply : kept_) bus_.send(reply);
  kept_.clear();
}

void FakeUDisks::Leave() {
  const QString name = bus_.name();
  bus_ = QDBusConnection("none");
  QDBusConnection::disconnectFromBus(name);
}

std::vector<std::string> FakeUDisks::Calls() const {
  const std::lock_guard lock(mutex_);
  return calls_;
}

bool FakeUDisks::WasCalled(const std::string& call) const {
  const std::vector<std::string> calls = Calls();
  return std::ranges::find(calls, call) != calls.end();
}

QString FakeUDisks::introspect(const QString& /*path*/) const {
  return {};
}

bool FakeUDisks::handleMessage(const QDBusMessage& message, const QDBusConnection& /*bus*/) {
  const std::lock_guard lock(mutex_);
  const std::string object = message.path().section('/', -1).toStdString();
  const std::string call = message.member().toStdString() + " " + object;
  calls_.push_back(call);
  if (before_.contains(call)) std::exchange(before_[call], [] {})();
  const QDBusMessage reply = Answer(call, message);
  if (std::ranges::find(held_, call) != held_.end()) {
    kept_.push_back(reply);
  } else {
    bus_.send(reply);
  }
  return true;
}

QDBusMessage FakeUDisks::Answer(const std::string& call, const QDBusMessage& message) {
  if (refused_.contains(call)) {
    return message.createErrorReply(QString::fromStdString(refused_[call].Name),
                                    QString::fromStdString(refused_[call].Words));
  }
  if (message.member() == "GetManagedObjects") return message.createReply(Tree());
  if (message.member() == "Eject") return message.createReply();
  const auto block = blocks_.find(message.path().section('/', -1).toStdString());
  if (block == blocks_.end()) {
    return message.createErrorReply("org.freedesktop.DBus.Error.UnknownMethod",
                                    "Object does not exist at path");
  }
  if (block->second.MountPoints.empty()) {
    return message.createErrorReply("org.freedesktop.UDisks2.Error.NotMounted", "Isn't mounted");
  }
  block->second.MountPoints.pop_back();
  return message.createReply();
}

QVariant FakeUDisks::Tree() const {
  FakeTree tree;
  for (const auto& [name, block] : blocks_) {
    QByteArrayList mounts;
    for (const std::string& folder : block.MountPoints) {
      mounts.append(QByteArray(folder.c_str(), static_cast<qsizetype>(folder.size()) + 1));
    }
    FakeInterfaces& all = tree[PathTo("/block_devices/", name).value<QDBusObjectPath>()];
    all["org.freedesktop.UDisks2.Block"] = {
        {"IdLabel", QString::fromStdString(block.Label)},
        {"Drive", PathTo("/drives/", block.Drive)},
        {"CryptoBackingDevice", PathTo("/block_devices/", block.Backing)}};
    all["org.freedesktop.UDisks2.Filesystem"] = {{"MountPoints", QVariant::fromValue(mounts)}};
  }
  for (const auto& [name, canEject] : drives_) {
    tree[PathTo("/drives/", name).value<QDBusObjectPath>()] = {
        {"org.freedesktop.UDisks2.Drive", {{"Ejectable", canEject}}}};
  }
  return QVariant::fromValue(tree);
}

}  // namespace kvr5::test
