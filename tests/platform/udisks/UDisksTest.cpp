#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <algorithm>
#include <memory>

#include "FakeUDisks.h"
#include "PrivateBus.h"
#include "platform/udisks/UDisks.h"
#include "platform/udisks/VolumesWithLabels.h"

namespace kvr5 {
namespace {

using namespace std::chrono_literals;
using Calls = std::vector<std::string>;

class OnABus : public testing::Test {
 protected:
  void SetUp() override {
    if (!test::PrivateBus::IsInstalled()) GTEST_SKIP() << "dbus-daemon isn't installed";
    bus = std::make_unique<test::PrivateBus>();
  }
  /// A stick with one volume.
  void Stick() {
    service.reset();
    service = std::make_unique<test::FakeUDisks>(bus->Connect());
    service->SetBlock("sdb", {.Drive = "Stick"});
    service->SetBlock("sdb1", {.Label = "HALL", .Drive = "Stick", .MountPoints = {"/media/HALL"}});
    service->SetDrive("Stick", true);
  }
  /// Another volume of it.
  void SecondVolume() {
    service->SetBlock("sdb2", {.Drive = "Stick", .MountPoints = {"/media/second"}});
  }
  UDisks Here(UDisksLimits limits = {}) { return UDisks(bus->Connect(), limits); }
  static Drive Card(const std::string& device = "sdb1", const std::string& mount = "/media/HALL") {
    Drive drive;
    drive.Mount = mount;
    drive.Device = device;
    return drive;
  }
  /// The outcome of an ejection, once it has one.
  Error Eject(UDisks& udisks, const Drive& drive = Card()) {
    std::vector<Error> outcomes;
    udisks.Eject(drive, [&](const Error& error) { outcomes.push_back(error); });
    EXPECT_TRUE(outcomes.empty()) << "it is told later";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !outcomes.empty(); }, 20000));
    return outcomes.empty() ? Error(-1) : outcomes[0];
  }
  Error Eject() {
    UDisks udisks = Here();
    return Eject(udisks);
  }
  /// What the service was asked to do, without its looks.
  Calls Deeds() const {
    Calls deeds = service->Calls();
    std::erase(deeds, "GetManagedObjects UDisks2");
    return deeds;
  }

  std::unique_ptr<test::PrivateBus> bus;
  std::unique_ptr<test::FakeUDisks> service;
};

class Ejection : public OnABus {};

TEST_F(Ejection, UnmountsThenEjects) {
  Stick();
  UDisks udisks = Here();
  EXPECT_TRUE(udisks.CanEject(Card()));
  EXPECT_EQ(Eject(udisks).Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb1", "Eject Stick"}));
  EXPECT_FALSE(udisks.CanEject(Card()));
}

TEST_F(Ejection, AReaderThatCannotEjectIsUnmountedOnly) {
  Stick();
  service->SetDrive("Stick", false);
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb1"}));
}

TEST_F(Ejection, OnceUnmountedAFailureToEjectIsNone) {
  Stick();
  service->Refuse("Eject Stick", {"org.freedesktop.UDisks2.Error.Failed", "no tray"});
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_TRUE(service->WasCalled("Eject Stick"));
}

TEST_F(Ejection, AVolumeInUseStays) {
  Stick();
  service->Refuse("Unmount sdb1",
                  {"org.freedesktop.UDisks2.Error.DeviceBusy", "target is busy: /media/HALL"});
  UDisks udisks = Here();
  const Error error = Eject(udisks);
  EXPECT_EQ(error.Number(), 70);
  EXPECT_EQ(error.Description(), "target is busy: /media/HALL");
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb1"}));
  EXPECT_TRUE(udisks.CanEject(Card())) << "to be tried again";
}

TEST_F(Ejection, WhoMayNotIsTold) {
  Stick();
  for (const char* name : {"org.freedesktop.UDisks2.Error.NotAuthorized",
                           "org.freedesktop.UDisks2.Error.NotAuthorizedCanObtain",
                           "org.freedesktop.UDisks2.Error.NotAuthorizedDismissed",
                           "org.freedesktop.DBus.Error.AccessDenied"}) {
    service->Refuse("Unmount sdb1", {name, "Not authorized to perform operation"});
    EXPECT_EQ(Eject().Number(), 70) << name;
  }
}

TEST_F(Ejection, AnyOtherRefusalIsAnErrorOfTheDevice) {
  Stick();
  service->Refuse("Unmount sdb1", {"org.freedesktop.UDisks2.Error.Failed", "I/O error"});
  EXPECT_EQ(Eject().Number(), 57);
  service->Refuse("Unmount sdb1", {"org.freedesktop.UDisks2.Error.Failed", ""});
  EXPECT_EQ(Eject().Description(), Error(57).Description()) << "a refusal without words";
}

TEST_F(Ejection, AllVolumesOfTheMediumAreUnmountedTheCardsOwnLast) {
  Stick();
  SecondVolume();
  service->SetBlock("sdc1", {.Drive = "Other", .MountPoints = {"/media/other"}});
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb2", "Unmount sdb1", "Eject Stick"}));
}

TEST_F(Ejection, NothingIsEjectedWhileAnotherVolumeIsInUse) {
  Stick();
  SecondVolume();
  service->Refuse("Unmount sdb2", {"org.freedesktop.UDisks2.Error.DeviceBusy", "busy"});
  UDisks udisks = Here();
  EXPECT_EQ(Eject(udisks).Number(), 70);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb2"}));
  EXPECT_TRUE(udisks.CanEject(Card()));
}

TEST_F(Ejection, AVolumeThatComesUpMeanwhileKeepsTheMediumIn) {
  Stick();
  service->Before("Unmount sdb1", [this] { SecondVolume(); });
  EXPECT_EQ(Eject().Number(), 70);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb1"}));
}

TEST_F(Ejection, AnOpenEncryptedVolumeOfTheMediumIsUnmountedToo) {
  Stick();
  service->SetBlock("sdb2", {.Drive = "Stick"});
  service->SetBlock("dm_2d0", {.Backing = "sdb2", .MountPoints = {"/media/secret"}});
  service->SetBlock("dm_2d1", {.Backing = "dm_2d1", .MountPoints = {"/media/of itself"}});
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount dm_2d0", "Unmount sdb1", "Eject Stick"}));
}

TEST_F(Ejection, AVolumeMountedTwiceIsUnmountedTwice) {
  Stick();
  service->SetBlock("sdb1", {.Drive = "Stick", .MountPoints = {"/mnt/a", "/media/HALL"}});
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount sdb1", "Unmount sdb1", "Eject Stick"}));
}

TEST_F(Ejection, WhatSomebodyElseUnmountsMeanwhileIsUnmounted) {
  Stick();
  service->Before("Unmount sdb1",
                  [this] { service->SetBlock("sdb1", {.Drive = "Stick", .MountPoints = {}}); });
  EXPECT_EQ(Eject().Number(), 0);
  EXPECT_TRUE(service->WasCalled("Eject Stick"));
}

TEST_F(Ejection, ADriveThatGoesInTheMiddleIsUnavailable) {
  Stick();
  service->Before("Unmount sdb1", [this] { service->Remove("sdb1"); });
  EXPECT_EQ(Eject().Number(), 68);
  Stick();
  service->Refuse("Unmount sdb1", {"org.freedesktop.UDisks2.Error.Failed", "no such device"});
  service->Before("Unmount sdb1", [this] { service->Remove("sdb1"); });
  const Error error = Eject();
  EXPECT_EQ(error.Number(), 68);
  EXPECT_EQ(error.Description(), "no such device");
}

TEST_F(Ejection, ADriveThatIsntThereIsUnavailable) {
  Stick();
  UDisks udisks = Here();
  for (const Drive& drive : {Card("sdx1"), Card("sdb1", "/media/CARD BEFORE"), Card("sdb"),
                             Card("", "/srv/card"), Card("../sdb1")}) {
    EXPECT_FALSE(udisks.CanEject(drive)) << drive.Device;
    EXPECT_EQ(Eject(udisks, drive).Number(), 68) << drive.Device;
  }
  EXPECT_TRUE(Deeds().empty());
}

TEST_F(Ejection, ADriveWithoutMediumIsNotEjected) {
  Stick();
  Drive drive = Card();
  drive.HasMedium = false;
  EXPECT_FALSE(Here().CanEject(drive));
}

TEST_F(Ejection, NamesOfDevicesAreWrittenAsTheBusWantsThem) {
  Stick();
  UDisks udisks = Here();
  service->SetBlock("mmcblk0p1", {.MountPoints = {"/media/SD"}});
  service->SetBlock("dm_2d0", {.MountPoints = {"/media/mapped"}});
  service->SetBlock("cciss_21c0d0_c3_a9", {.MountPoints = {"/media/odd"}});
  EXPECT_TRUE(udisks.CanEject(Card("mmcblk0p1", "/media/SD")));
  EXPECT_TRUE(udisks.CanEject(Card("dm-0", "/media/mapped")));
  EXPECT_TRUE(udisks.CanEject(Card("cciss!c0d0é", "/media/odd")));
  EXPECT_EQ(Eject(udisks, Card("dm-0", "/media/mapped")).Number(), 0);
  EXPECT_EQ(Deeds(), (Calls{"Unmount dm_2d0"})) << "it belongs to no drive";
}

TEST_F(Ejection, FoldersMayHaveAnyName) {
  Stick();
  service->SetBlock("sdb1", {.Drive = "Stick", .MountPoints = {"/media/Caffè n. 1"}});
  EXPECT_TRUE(Here().CanEject(Card("sdb1", "/media/Caffè n. 1")));
}

TEST_F(Ejection, ADriveThatTakesItsTimeIsWaitedForAndNothingStopsMeanwhile) {
  Stick();
  service->Hold("Unmount sdb1");
  UDisks udisks = Here();
  int outcomes = 0;
  udisks.Eject(Card(), [&](const Error& error) { outcomes += error ? 100 : 1; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return service->WasCalled("Unmount sdb1"); }, 20000));
  EXPECT_FALSE(udisks.CanEject(Card())) << "questions are answered all the while";
  QCoreApplication::processEvents();
  EXPECT_EQ(outcomes, 0);
  service->Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return outcomes != 0; }, 20000));
  QCoreApplication::processEvents();
  EXPECT_EQ(outcomes, 1);
}

TEST_F(Ejection, AnEjectorThatIsDeletedCallsNobody) {
  Stick();
  service->Hold("Unmount sdb1");
  auto udisks = std::make_unique<UDisks>(bus->Connect());
  bool called = false;
  udisks->Eject(Card(), [&](const Error& /*error*/) { called = true; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return service->WasCalled("Unmount sdb1"); }, 20000));
  udisks.reset();
  service->Release();
  UDisks other = Here();
  EXPECT_EQ(Eject(other).Number(), 68) << "by now it is unmounted";
  EXPECT_FALSE(called);
}

TEST_F(Ejection, WhoIsToldMayDeleteTheEjector) {
  Stick();
  auto udisks = std::make_unique<UDisks>(bus->Connect());
  service->Refuse("Unmount sdb1", {"org.freedesktop.UDisks2.Error.Failed", "I/O error"});
  std::string words;
  udisks->Eject(Card(), [&](const Error& error) {
    udisks.reset();
    words = error.Description();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return udisks == nullptr; }, 20000));
  EXPECT_EQ(words, "I/O error");
}

TEST_F(Ejection, WithoutAServiceThereIsNoneAndNoneIsStarted) {
  bus->OfferToStart("org.freedesktop.UDisks2");
  UDisks udisks = Here();
  EXPECT_FALSE(udisks.CanEject(Card()));
  EXPECT_EQ(Eject(udisks).Number(), 68);
  EXPECT_FALSE(bus->HasStartedOne());
}

TEST_F(Ejection, AServiceThatLeavesInTheMiddleIsUnavailable) {
  Stick();
  service->Hold("Unmount sdb1");
  UDisks udisks = Here();
  std::optional<Error> outcome;
  udisks.Eject(Card(), [&](const Error& error) { outcome = error; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return service->WasCalled("Unmount sdb1"); }, 20000));
  service->Leave();
  EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.has_value(); }, 20000));
  EXPECT_EQ(outcome.value_or(Error()).Number(), 68);
}

TEST_F(Ejection, AnUnmountWithoutEndIsGivenUp) {
  Stick();
  service->Hold("Unmount sdb1");
  UDisks udisks = Here({.Work = 50ms});
  EXPECT_EQ(Eject(udisks).Number(), 68);
}

TEST_F(Ejection, AServiceThatDoesNotAnswerIsNotWaitedForLong) {
  Stick();
  service->Hold("GetManagedObjects UDisks2");
  UDisks udisks = Here({.Question = 50ms});
  EXPECT_FALSE(udisks.CanEject(Card()));
  EXPECT_EQ(Eject(udisks).Number(), 68);
  EXPECT_TRUE(Deeds().empty());
}

TEST_F(Ejection, ABusThatGoesTakesTheServiceAlong) {
  Stick();
  service->Hold("Unmount sdb1");
  UDisks udisks = Here();
  std::optional<Error> outcome;
  udisks.Eject(Card(), [&](const Error& error) { outcome = error; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return service->WasCalled("Unmount sdb1"); }, 20000));
  bus->Stop();
  EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.has_value(); }, 20000));
  EXPECT_EQ(outcome.value_or(Error()).Number(), 68);
}

TEST(EjectionWithoutABus, IsNoneAtOnce) {
  UDisks udisks(QDBusConnection("no such connection"));
  Drive drive;
  drive.Mount = "/media/HALL";
  drive.Device = "sdb1";
  EXPECT_FALSE(udisks.CanEject(drive));
  std::optional<Error> outcome;
  udisks.Eject(drive, [&](const Error& error) { outcome = error; });
  EXPECT_FALSE(outcome) << "it is told later";
  QCoreApplication::processEvents();
  ASSERT_TRUE(outcome);
  EXPECT_EQ(outcome->Number(), 68);
}

/// Volumes of a test.
class Mounted : public VolumeSource {
 public:
  std::vector<Volume> Removable() const override { return volumes; }
  std::optional<VolumeRoom> Room(const std::string& /*folder*/) const override {
    return VolumeRoom{.Size = 5};
  }
  std::vector<Volume> volumes;
};

class LabelsByUDisks : public OnABus {
 protected:
  void SetUp() override {
    OnABus::SetUp();
    if (!bus) return;
    udisks = std::make_unique<UDisks>(bus->Connect(), UDisksLimits{.Question = 2000ms});
    Wrap();
  }
  void Wrap() {
    auto below = std::make_unique<Mounted>();
    mounted = below.get();
    mounted->volumes = {{"/media/HALL", "", "vfat", "sdb1"}};
    volumes = std::make_unique<VolumesWithLabels>(std::move(below), *udisks);
  }
  std::vector<std::string> Labels() const {
    std::vector<std::string> labels;
    for (const Volume& volume : volumes->Removable()) labels.push_back(volume.Label);
    return labels;
  }
  std::size_t Questions() const { return service->Calls().size(); }

  std::unique_ptr<UDisks> udisks;
  std::unique_ptr<VolumesWithLabels> volumes;
  Mounted* mounted = nullptr;
};

TEST_F(LabelsByUDisks, FillWhatIsMissing) {
  Stick();
  service->SetBlock("dm_2d0", {.Label = "Città"});
  mounted->volumes = {{"/media/HALL", "", "vfat", "sdb1"},   {"/media/own", "OWN", "vfat", "sdb1"},
                      {"/media/mapped", "", "vfat", "dm-0"}, {"/media/none", "", "vfat", "sdb"},
                      {"/media/unknown", "", "vfat", "sdz"}, {"/srv/folder", "", "", ""}};
  EXPECT_EQ(Labels(), (Calls{"HALL", "OWN", "Città", "", "", ""}));
  EXPECT_EQ(Questions(), 1U) << "all at once";
  EXPECT_EQ(volumes->Removable()[0].Mount, "/media/HALL");
  EXPECT_EQ(volumes->Room("/media/HALL")->Size, 5U);
}

TEST_F(LabelsByUDisks, AskOnceForACard) {
  Stick();
  Labels();
  Labels();
  EXPECT_EQ(Labels(), Calls{"HALL"});
  EXPECT_EQ(Questions(), 1U);
  service->SetBlock("sdb1", {.Label = "NEXT"});
  mounted->volumes[0].Mount = "/media/NEXT";
  EXPECT_EQ(Labels(), Calls{"NEXT"}) << "another card in the same reader";
  EXPECT_EQ(Questions(), 2U);
}

TEST_F(LabelsByUDisks, ForgetACardThatIsOut) {
  Stick();
  Labels();
  const std::vector<Volume> in = std::exchange(mounted->volumes, {});
  EXPECT_TRUE(Labels().empty());
  service->SetBlock("sdb1", {.Label = "NEXT"});
  mounted->volumes = in;
  EXPECT_EQ(Labels(), Calls{"NEXT"});
}

TEST_F(LabelsByUDisks, WithoutAServiceThereIsNone) {
  EXPECT_EQ(Labels(), Calls{""});
}

TEST_F(LabelsByUDisks, AServiceThatDoesNotAnswerIsAskedOnceForACard) {
  Stick();
  service->Hold("GetManagedObjects UDisks2");
  udisks = std::make_unique<UDisks>(bus->Connect(), UDisksLimits{.Question = 50ms});
  Wrap();
  EXPECT_EQ(Labels(), Calls{""});
  EXPECT_EQ(Labels(), Calls{""});
  EXPECT_TRUE(QTest::qWaitFor([&] { return Questions() > 0; }, 20000));
  EXPECT_EQ(Questions(), 1U);
}

}  // namespace
}  // namespace kvr5
