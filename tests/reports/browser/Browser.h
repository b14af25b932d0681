#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "reports/browser/BrowserProcess.h"
#include "support/TempFolder.h"

namespace kvr5::test {

/// One page in a browser without a window. Every call throws std::runtime_error with the browser's
/// own words when it refuses or doesn't answer.
class Browser {
 public:
  Browser();

  /// Shows a file and waits until it and its images are there.
  void Open(const std::filesystem::path& page);
  /// The size of the view, in CSS pixels.
  void SetSize(int width, int height = 800);
  /// How the page is shown: "screen" or "print", light or dark.
  void SetMedia(const std::string& medium, bool dark);
  /// The value of an expression of the page's own language; a promise is waited for.
  nlohmann::json Value(const std::string& expression);
  /// The page as it is printed.
  std::string Pdf();
  /// The addresses of all that the page has asked for.
  const std::vector<std::string>& Requests() const { return requests_; }

 private:
  nlohmann::json Call(const std::string& method, nlohmann::json parameters = {});
  /// The next message of the browser.
  nlohmann::json Next();

  TempFolder folder_;
  BrowserProcess process_{folder_.Host().string()};
  std::string session_;
  int calls_ = 0;
  bool loaded_ = false;
  std::vector<std::string> requests_;
};

}  // namespace kvr5::test
