#include "platform/udisks/UDisksObjects.h"

#include <QtCore/QByteArrayList>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusObjectPath>
#include <algorithm>

namespace kvr5 {
namespace {

using Interfaces = QMap<QString, QVariantMap>;
using Tree = QMap<QDBusObjectPath, Interfaces>;

constexpr QLatin1String kBlock("org.freedesktop.UDisks2.Block");
constexpr QLatin1String kFilesystem("org.freedesktop.UDisks2.Filesystem");
constexpr QLatin1String kDrive("org.freedesktop.UDisks2.Drive");

/// A path of another object; "" for "/", by which UDisks2 says that there is none.
std::string PathIn(const QVariantMap& properties, QLatin1String name) {
  const std::string path = properties.value(name).value<QDBusObjectPath>().path().toStdString();
  return path == "/" ? "" : path;
}

/// Folders come as bytes with a closing zero.
std::vector<std::string> FoldersIn(const QVariant& value) {
  std::vector<std::string> folders;
  for (const QByteArray& bytes : qdbus_cast<QByteArrayList>(value)) {
    folders.emplace_back(bytes.constData());
  }
  return folders;
}

}  // namespace

QDBusMessage UDisksObjects::Question() {
  return QDBusMessage::createMethodCall("org.freedesktop.UDisks2", "/org/freedesktop/UDisks2",
                                        "org.freedesktop.DBus.ObjectManager", "GetManagedObjects");
}

std::optional<UDisksObjects> UDisksObjects::From(const QDBusMessage& reply) {
  if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{oa{sa{sv}}}") {
    return std::nullopt;
  }
  UDisksObjects objects;
  const Tree tree = qdbus_cast<Tree>(reply.arguments().constFirst());
  for (auto object = tree.begin(); object != tree.end(); ++object) {
    const std::string path = object.key().path().toStdString();
    const Interfaces& all = object.value();
    if (all.contains(kBlock)) {
      const QVariantMap block = all.value(kBlock);
      objects.blocks_[path] = {
          .Label = block.value("IdLabel").toString().toStdString(),
          .Drive = PathIn(block, QLatin1String("Drive")),
          .Backing = PathIn(block, QLatin1String("CryptoBackingDevice")),
          .MountPoints = FoldersIn(all.value(kFilesystem).value("MountPoints"))};
    }
    if (all.contains(kDrive)) {
      objects.drives_[path] = all.value(kDrive).value("Ejectable").toBool();
    }
  }
  return objects;
}

std::string UDisksObjects::PathOf(const std::string& device) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string path = "/org/freedesktop/UDisks2/block_devices/";
  for (const char sign : device) {
    if (kPlain.find(sign) != std::string_view::npos) {
      path += sign;
      continue;
    }
    const auto byte = static_cast<unsigned char>(sign);
    path += {'_', kDigits[byte >> 4U], kDigits[byte & 15U]};
  }
  return path;
}

std::string UDisksObjects::LabelOf(const std::string& path) const {
  const auto block = blocks_.find(path);
  return block == blocks_.end() ? "" : block->second.Label;
}

bool UDisksObjects::IsMounted(const std::string& path, const std::string& folder) const {
  const auto block = blocks_.find(path);
  return block != blocks_.end() && std::ranges::count(block->second.MountPoints, folder) > 0;
}

std::string UDisksObjects::DriveOf(const std::string& path) const {
  auto block = blocks_.find(path);
  for (std::size_t steps = 0; block != blocks_.end() && steps < blocks_.size(); ++steps) {
    if (!block->second.Drive.empty()) return block->second.Drive;
    block = blocks_.find(block->second.Backing);
  }
  return "";
}

std::vector<std::string> UDisksObjects::MountedBeside(const std::string& path) const {
  std::vector<std::string> mounted;
  const std::string drive = DriveOf(path);
  for (const auto& [other, block] : blocks_) {
    const bool isBeside = other != path && !drive.empty() && DriveOf(other) == drive;
    if (isBeside) mounted.insert(mounted.end(), block.MountPoints.size(), other);
  }
  if (Knows(path)) mounted.insert(mounted.end(), blocks_.at(path).MountPoints.size(), path);
  return mounted;
}

bool UDisksObjects::CanEject(const std::string& drive) const {
  const auto found = drives_.find(drive);
  return found != drives_.end() && found->second;
}

}  // namespace kvr5
