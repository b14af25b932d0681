#include "Machine.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kvr5::test {

namespace fs = std::filesystem;

Machine::Machine(const fs::path& sample) {
  std::ifstream in(sample);
  EXPECT_TRUE(in) << sample;
  for (std::string line; std::getline(in, line);) Read(line);
  folder_.Write("mountinfo", mounts_);
}

std::vector<Volume> Machine::Volumes() const {
  return host::LinuxVolumes({.MountTable = folder_.Host() / "mountinfo",
                             .Sys = folder_.Host() / "sys",
                             .Udev = folder_.Host() / "udev",
                             .Labels = folder_.Host() / "labels"})
      .Removable();
}

void Machine::Read(const std::string& line) {
  std::istringstream words(line);
  std::string kind;
  std::string first;
  std::string rest;
  if (!(words >> kind) || kind.starts_with('#')) return;
  if (kind == "device") return AddDevice(words);
  if (kind == "btrfs") return AddMembers(words);
  std::getline(words >> std::ws, rest);
  if (kind == "mount") {
    mounts_ += rest + "\n";
  } else if (kind == "offered") {
    expected_.push_back(rest);
  } else if (kind == "udev") {
    const std::size_t blank = rest.find(' ');
    folder_.Write("udev/b" + rest.substr(0, blank),
                  "S:disk/by-diskseq/9\nI:1\nE:" + rest.substr(blank + 1) + "\nG:systemd\n");
  } else if (kind == "label") {
    const std::size_t blank = rest.find(' ');
    Link(folder_.Host() / "labels" / rest.substr(0, blank), "../../" + rest.substr(blank + 1));
  } else {
    ADD_FAILURE() << "a sample says " << line;
  }
}

void Machine::AddDevice(std::istringstream& words) {
  std::string path;
  std::string number;
  words >> path >> number;
  const std::string inTree = "sys/devices/" + path;
  const fs::path device = folder_.Host() / inTree;
  folder_.Write(inTree + "/dev", number + "\n");
  Link(folder_.Host() / "sys/dev/block" / number, device);
  Link(ByName(device.filename()), device);
  for (std::string fact; words >> fact;) {
    const std::size_t sign = fact.find('=');
    const std::string name = fact.substr(0, sign);
    std::istringstream values(fact.substr(sign + 1));
    if (name != "slaves") {
      folder_.Write(inTree + "/" + name, values.str() + "\n");
      continue;
    }
    for (std::string slave; std::getline(values, slave, ',');) {
      Link(device / "slaves" / slave, fs::canonical(ByName(slave)));
    }
  }
}

void Machine::AddMembers(std::istringstream& words) {
  const fs::path devices =
      folder_.Host() / "sys/fs/btrfs" / ("volume" + std::to_string(++members_)) / "devices";
  for (std::string name; words >> name;) Link(devices / name, fs::canonical(ByName(name)));
}

void Machine::Link(const fs::path& link, const fs::path& target) const {
  fs::create_directories(link.parent_path());
  fs::create_symlink(target, link);
}

fs::path Machine::ByName(const std::string& device) const {
  return folder_.Host() / "sys/class/block" / device;
}

}  // namespace kvr5::test
