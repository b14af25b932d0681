#include "reports/Markup.h"

#include "reports/TestoHtml.h"

namespace kvr5 {

std::string TitoloReport(std::string_view testo) {
  // One closing tag more than was opened: pages have always been so, and browsers drop it.
  return "<CENTER><P><B><FONT COLOR='Blue'><FONT SIZE=+2>" + TestoHtml(testo) +
         "</FONT></FONT></FONT></B></P></CENTER>";
}

std::string CampoReport(std::string_view etichetta, std::string_view valore) {
  return "<FONT COLOR=BLUE>" + TestoHtml(etichetta) + ":</FONT> " + TestoHtml(valore) + "<BR>";
}

std::string SezioneReport(std::string_view testo) {
  return "<P><B><FONT COLOR='Blue'>" + TestoHtml(testo) + "</FONT></B></P>";
}

std::string GruppoReport(std::string_view testo) {
  return "<B><FONT COLOR='Blue'>" + TestoHtml(testo) + "</FONT></B><BR>";
}

}  // namespace kvr5
