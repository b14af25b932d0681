#pragma once

#include <QFontMetrics>
#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace kvr5 {

/// The logic's text (UTF-8) for a control.
inline QString Qs(std::string_view testo) {
  return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}

/// A text of the logic's boxes, whose lines are divided by CR LF, for a control.
inline QString QsRighe(std::string_view testo) {
  return Qs(testo).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// The same text with invisible places to break in each word that is wider than `pixel`: behind a
/// bar where it has one in time, else anywhere. Paths have no blanks.
QString Spezzabile(const QString& testo, const QFontMetrics& caratteri, int pixel);

/// What a control holds, for the logic.
inline std::string Std(const QString& testo) {
  return testo.toStdString();
}

/// A text that a button takes as it stands, without a mnemonic.
inline QString SenzaMnemonico(QString testo) {
  return testo.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/// A name or path as a tool tip: shown as it is, also where it looks like markup ("<b>.mp3").
inline QString Suggerimento(const QString& testo) {
  if (!Qt::mightBeRichText(testo)) return testo;
  return testo.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
}

}  // namespace kvr5
