#include "platform/udisks/EjectJob.h"

#include <QtCore/QMetaObject>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusPendingCallWatcher>
#include <algorithm>
#include <array>
#include <string_view>

namespace kvr5 {
namespace {

constexpr QLatin1String kNotMounted("org.freedesktop.UDisks2.Error.NotMounted");

int NumberOf(std::string_view name) {
  constexpr std::array<std::string_view, 6> kRefused{
      "org.freedesktop.UDisks2.Error.DeviceBusy",
      "org.freedesktop.UDisks2.Error.NotAuthorized",
      "org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain",
      "org.freedesktop.UDisks2.Error.NotAuthorizedDismissed",
      "org.freedesktop.DBus.Error.AccessDenied",
      "org.freedesktop.DBus.Error.InteractiveAuthorizationRequired"};
  constexpr std::array<std::string_view, 8> kGone{
      "org.freedesktop.DBus.Error.ServiceUnknown", "org.freedesktop.DBus.Error.NameHasNoOwner",
      "org.freedesktop.DBus.Error.UnknownObject",  "org.freedesktop.DBus.Error.UnknownInterface",
      "org.freedesktop.DBus.Error.UnknownMethod",  "org.freedesktop.DBus.Error.NoReply",
      "org.freedesktop.DBus.Error.Timeout",        "org.freedesktop.DBus.Error.Disconnected"};
  if (std::ranges::find(kRefused, name) != kRefused.end()) return errors::PermissionDenied;
  if (std::ranges::find(kGone, name) != kGone.end()) return errors::DeviceUnavailable;
  return errors::DeviceIo;
}

}  // namespace

Error ErrorOf(const QDBusMessage& reply) {
  if (reply.type() == QDBusMessage::ReplyMessage) return {};
  const int number = NumberOf(reply.errorName().toStdString());
  const std::string words = reply.errorMessage().toStdString();
  return words.empty() ? Error(number) : Error(number, words);
}

EjectJob::EjectJob(QDBusConnection bus, UDisksLimits limits, const Drive& drive,
                   std::function<void(const Error&)> done, QObject* parent)
    : QObject(parent),
      bus_(std::move(bus)),
      limits_(limits),
      path_(UDisksObjects::PathOf(drive.Device)),
      mount_(drive.Mount),
      done_(std::move(done)) {}

void EjectJob::Start() {
  Look([this](const QDBusMessage& reply) { Plan(reply); });
}

void EjectJob::Ask(QDBusMessage message, std::chrono::milliseconds limit, const Next& next) {
  if (!bus_.isConnected()) {  // such a call would never come back
    const auto error = QDBusMessage::createError(QDBusError::Disconnected, "");
    QMetaObject::invokeMethod(
        this, [next, error] { next(error); }, Qt::QueuedConnection);
    return;
  }
  message.setAutoStartService(false);
  const QDBusPendingCall call = bus_.asyncCall(message, static_cast<int>(limit.count()));
  auto* watcher = new QDBusPendingCallWatcher(call, this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, next] {
    watcher->deleteLater();
    next(watcher->reply());
  });
}

void EjectJob::Look(const Next& next) {
  Ask(UDisksObjects::Question(), limits_.Question, next);
}

void EjectJob::Call(const std::string& path, const char* interface, const char* method,
                    const Next& next) {
  QDBusMessage message = QDBusMessage::createMethodCall(
      "org.freedesktop.UDisks2", QString::fromStdString(path), interface, method);
  message << QVariantMap();  // no options: whoever may not is asked for a password
  Ask(message, limits_.Work, next);
}

void EjectJob::Plan(const QDBusMessage& reply) {
  const std::optional<UDisksObjects> objects = UDisksObjects::From(reply);
  if (!objects && ErrorOf(reply)) return Finish(ErrorOf(reply));
  // Another card may be in the reader by now: it has the name of the device, but not the folder.
  if (!objects || !objects->IsMounted(path_, mount_)) {
    return Finish(Error(errors::DeviceUnavailable));
  }
  mounted_ = objects->MountedBeside(path_);
  UnmountNext();
}

void EjectJob::UnmountNext() {
  if (mounted_.empty()) return Look([this](const QDBusMessage& reply) { EjectMedium(reply); });
  const std::string path = mounted_.front();
  mounted_.erase(mounted_.begin());
  Call(path, "org.freedesktop.UDisks2.Filesystem", "Unmount",
       [this](const QDBusMessage& reply) { Unmounted(reply); });
}

void EjectJob::Unmounted(const QDBusMessage& reply) {
  const Error error = ErrorOf(reply);
  if (!error || reply.errorName() == kNotMounted) return UnmountNext();
  if (error.Number() != errors::DeviceIo) return Finish(error);
  Look([this, error](const QDBusMessage& look) {
    const std::optional<UDisksObjects> objects = UDisksObjects::From(look);
    const bool isGone = objects && !objects->Knows(path_);
    Finish(isGone ? Error(errors::DeviceUnavailable, error.Description()) : error);
  });
}

/// The volumes are off: what fails from here on is no failure, unless one came back meanwhile.
void EjectJob::EjectMedium(const QDBusMessage& reply) {
  const std::optional<UDisksObjects> objects = UDisksObjects::From(reply);
  if (!objects) return Finish({});
  if (!objects->MountedBeside(path_).empty()) return Finish(Error(errors::PermissionDenied));
  const std::string drive = objects->DriveOf(path_);
  if (!objects->CanEject(drive)) return Finish({});
  Call(drive, "org.freedesktop.UDisks2.Drive", "Eject",
       [this](const QDBusMessage& /*reply*/) { Finish({}); });
}

void EjectJob::Finish(const Error& error) {
  const auto done = std::move(done_);
  deleteLater();
  done(Error(error));  // who may delete the ejector, this with it, and what `error` stands in
}

}  // namespace kvr5
