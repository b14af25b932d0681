#pragma once

#include <QDesktopServices>
#include <QTextBrowser>
#include <QUrl>
#include <string>
#include <vector>

namespace kvr5::test {

/// Takes the folders and pages that are opened in the desktop's place: a browser of texts has the
/// slot that a handler needs.
class Scrivania : public QTextBrowser {
 public:
  Scrivania() {
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource");
    connect(this, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& url) { Aperti.push_back(url.toLocalFile().toStdString()); });
  }
  ~Scrivania() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
  QVariant loadResource(int /*type*/, const QUrl& /*url*/) override { return QStringLiteral(" "); }
  /// The paths so far, in the host's form.
  std::vector<std::string> Aperti;
};

}  // namespace kvr5::test
