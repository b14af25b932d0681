#include "reports/browser/Browser.h"

#include <cctype>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace kvr5::test {

using nlohmann::json;

namespace {

/// The address of a file: every byte that isn't a plain one is escaped.
std::string AddressOf(const std::filesystem::path& file) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char each : file.string()) {
    const auto byte = static_cast<unsigned char>(each);
    if ((byte < 0x80 && std::isalnum(byte) != 0) || each == '/' || each == '.') {
      address += each;
    } else {
      address += {'%', kDigits[byte >> 4U], kDigits[byte & 15U]};
    }
  }
  return address;
}

std::string FromBase64(std::string_view text) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string bytes;
  unsigned bits = 0;
  int count = 0;
  for (const char each : text) {
    const auto digit = kDigits.find(each);
    if (digit == std::string_view::npos) break;  // the filling at the end
    bits = (bits << 6U) | static_cast<unsigned>(digit);
    count += 6;
    if (count >= 8) {
      count -= 8;
      bytes += static_cast<char>((bits >> static_cast<unsigned>(count)) & 0xFFU);
    }
  }
  return bytes;
}

}  // namespace

Browser::Browser() {
  const json target = Call("Target.createTarget", {{"url", "about:blank"}});
  session_ = Call("Target.attachToTarget", {{"targetId", target.at("targetId")}, {"flatten", true}})
                 .at("sessionId");
  Call("Page.enable");
  Call("Network.enable");
}

void Browser::Open(const std::filesystem::path& page) {
  loaded_ = false;
  const json answer = Call("Page.navigate", {{"url", AddressOf(page)}});
  if (answer.contains("errorText")) throw std::runtime_error(answer.dump());
  while (!loaded_) Next();
}

void Browser::SetSize(int width, int height) {
  Call("Emulation.setDeviceMetricsOverride",
       {{"width", width}, {"height", height}, {"deviceScaleFactor", 1}, {"mobile", false}});
}

void Browser::SetMedia(const std::string& medium, bool dark) {
  const json scheme = {{"name", "prefers-color-scheme"}, {"value", dark ? "dark" : "light"}};
  Call("Emulation.setEmulatedMedia", {{"media", medium}, {"features", json::array({scheme})}});
}

json Browser::Value(const std::string& expression) {
  const json answer =
      Call("Runtime.evaluate",
           {{"expression", expression}, {"returnByValue", true}, {"awaitPromise", true}});
  if (answer.contains("exceptionDetails")) throw std::runtime_error(answer.dump());
  return answer.at("result").value("value", json());
}

std::string Browser::Pdf() {
  const json answer = Call("Page.printToPDF", {{"preferCSSPageSize", true}});
  return FromBase64(answer.at("data").get<std::string>());
}

json Browser::Call(const std::string& method, json parameters) {
  json message = {{"id", ++calls_}, {"method", method}};
  if (!parameters.is_null()) message["params"] = std::move(parameters);
  if (!session_.empty()) message["sessionId"] = session_;
  process_.Send(message.dump());
  for (;;) {
    json answer = Next();
    if (answer.value("id", 0) != calls_) continue;
    if (answer.contains("error")) throw std::runtime_error(method + ": " + answer.dump());
    return answer.at("result");
  }
}

json Browser::Next() {
  const auto text = process_.Receive();
  if (!text) {
    throw std::runtime_error("the browser is silent: " + folder_.Read("browser.log"));
  }
  json message = json::parse(*text);
  const std::string method = message.value("method", "");
  if (method == "Page.loadEventFired") loaded_ = true;
  if (method == "Network.requestWillBeSent") {
    requests_.push_back(message.at("params").at("request").at("url"));
  }
  return message;
}

}  // namespace kvr5::test
