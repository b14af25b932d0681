#include "platform/udisks/UDisks.h"

#include "platform/udisks/EjectJob.h"

namespace kvr5 {

UDisks::UDisks(QDBusConnection bus, UDisksLimits limits) : bus_(std::move(bus)), limits_(limits) {}

bool UDisks::CanEject(const Drive& drive) const {
  if (drive.Device.empty() || !drive.HasMedium) return false;
  const std::optional<UDisksObjects> objects = Look();
  return objects && objects->IsMounted(UDisksObjects::PathOf(drive.Device), drive.Mount);
}

void UDisks::Eject(const Drive& drive, std::function<void(const Error&)> done) {
  auto* job = new EjectJob(bus_, limits_, drive, std::move(done), &jobs_);
  job->Start();
}

std::optional<UDisksObjects> UDisks::Look() const {
  if (!bus_.isConnected()) return std::nullopt;
  QDBusMessage question = UDisksObjects::Question();
  question.setAutoStartService(false);
  const auto limit = static_cast<int>(limits_.Question.count());
  return UDisksObjects::From(bus_.call(question, QDBus::Block, limit));
}

}  // namespace kvr5
