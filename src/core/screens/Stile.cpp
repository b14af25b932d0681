#include "core/screens/Stile.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>

#include "core/screens/Icona.h"
#include "core/screens/PortaLettera.h"
#include "core/screens/Tema.h"

namespace kvr5 {
namespace {

constexpr double kHalf = 0.5;
constexpr int kIndicator = 24;  // the box, and its ring around it

QRectF Crisp(const QRect& rect) {
  return QRectF(rect).adjusted(kHalf, kHalf, -kHalf, -kHalf);
}

void RoundedRect(QPainter& painter, const QRect& rect, const QColor& edge, const QColor& fill) {
  painter.setPen(edge.isValid() ? QPen(edge) : QPen(Qt::NoPen));
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  painter.drawRoundedRect(Crisp(rect), spazi::kAngolo, spazi::kAngolo);
}

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// Field, list or combo box: a surface with a line around it, which is the ring under the focus.
void DrawField(QPainter& painter, const QStyleOption& option, bool focus) {
  const Tema& tema = Tema::Corrente();
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  RoundedRect(painter, option.rect, tema.Linea, enabled ? tema.Superficie : tema.Incavo);
  if (focus && enabled) {
    painter.setPen(QPen(tema.Fuoco, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), spazi::kAngolo,
                            spazi::kAngolo);
  }
  painter.restore();
}

void DrawMark(QPainter& painter, const QRectF& box, bool round, const QColor& colour) {
  if (round) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(box.center(), 3.5, 3.5);
    return;
  }
  painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF{{box.left() + 4, box.center().y()},
                                 {box.left() + 7, box.bottom() - 4.5},
                                 {box.right() - 3.5, box.top() + 4.5}});
}

/// A box or a round one; its ring lies inside its own room.
void DrawIndicator(QPainter& painter, const QStyleOption& option, bool round) {
  const QPalette& palette = option.palette;
  const bool on = (option.state & QStyle::State_On) != 0;
  const QColor fill = palette.color(on ? QPalette::Link : QPalette::Base);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(on ? fill : palette.color(QPalette::Mid), 1.5));
  painter.setBrush(fill);
  const QRectF box = QRectF(option.rect).adjusted(4, 4, -4, -4);
  const double radius = round ? box.width() / 2 : 4;
  painter.drawRoundedRect(box, radius, radius);
  if (on) DrawMark(painter, box, round, palette.color(QPalette::LinkVisited));
  if ((option.state & QStyle::State_HasFocus) != 0) {
    painter.setPen(QPen(palette.color(QPalette::BrightText), 2));
    painter.setBrush(Qt::NoBrush);
    const QRectF ring = box.adjusted(-3, -3, 3, 3);
    painter.drawRoundedRect(ring, radius + 2, radius + 2);
  }
  painter.restore();
}

void DrawItem(QPainter& painter, const QStyleOptionViewItem& option) {
  const Tema& tema = Tema::Corrente();
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  const bool hover = (option.state & QStyle::State_MouseOver) != 0;
  if (selected) {
    painter.fillRect(option.rect, tema.Selezione);
    if (option.index.column() == 0) {
      painter.fillRect(QRect(option.rect.left(), option.rect.top(), 3, option.rect.height()),
                       tema.Primario);
    }
  } else if (hover) {
    painter.fillRect(option.rect, tema.Incavo);
  } else if (option.backgroundBrush.style() != Qt::NoBrush) {
    painter.fillRect(option.rect, option.backgroundBrush);
  }
}

void DrawSlider(QPainter& painter, const QStyleOptionSlider& option, const QRect& groove,
                const QRect& handle) {
  const Tema& tema = Tema::Corrente();
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  const bool upright = option.orientation == Qt::Vertical;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(tema.Linea);
  QRectF track = groove;
  if (upright) {
    track = QRectF(groove.center().x() - 1.5, groove.top(), 4, groove.height());
  } else {
    track = QRectF(groove.left(), groove.center().y() - 1.5, groove.width(), 4);
  }
  painter.drawRoundedRect(track, 2, 2);
  QRectF filled = track;  // from the lower end up to the handle
  if (upright) {
    filled.setTop(handle.center().y());
  } else {
    filled.setRight(handle.center().x());
  }
  painter.setBrush(enabled ? tema.Primario : tema.Disabilitato);
  painter.drawRoundedRect(filled, 2, 2);
  if ((option.state & QStyle::State_HasFocus) != 0) {
    painter.setPen(QPen(tema.Fuoco, 2));
    painter.setBrush(tema.Superficie);
    painter.drawEllipse(QRectF(handle).center(), 10, 10);
    painter.setPen(Qt::NoPen);
  }
  painter.setBrush(enabled ? tema.Primario : tema.Disabilitato);
  painter.drawEllipse(QRectF(handle).center(), 7, 7);
  painter.restore();
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle) {
  const Tema& tema = Tema::Corrente();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const bool active = (option.activeSubControls & QStyle::SC_ScrollBarSlider) != 0;
  painter.setBrush(active ? tema.Attenuato : tema.Linea);
  const QRectF thumb = QRectF(handle).adjusted(3, 3, -3, -3);
  if (option.maximum > option.minimum) painter.drawRoundedRect(thumb, 3, 3);
  painter.restore();
}

void DrawCombo(QPainter& painter, const QStyleOptionComboBox& option, const QRect& arrow) {
  const Tema& tema = Tema::Corrente();
  DrawField(painter, option, (option.state & QStyle::State_HasFocus) != 0);
  const bool enabled = (option.state & QStyle::State_Enabled) != 0;
  const QPointF centre = QRectF(arrow).center();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(enabled ? tema.Testo : tema.Disabilitato, 1.75, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPolyline(
      QPolygonF{centre + QPointF(-4, -2), centre + QPointF(0, 2), centre + QPointF(4, -2)});
  painter.restore();
}

}  // namespace

void DipingiPulsante(QPainter& pittore, const QRect& dove, const AspettoPulsante& aspetto) {
  const Tema& tema = Tema::Corrente();
  const double strength = !aspetto.Abilitato ? 0
                          : aspetto.Premuto  ? 0.16
                          : aspetto.Sopra    ? 0.08
                                             : 0;
  switch (aspetto.Genere) {
    case Coppia::Genere::Primario:
    case Coppia::Genere::CartaPrimaria:
      if (aspetto.Abilitato) {
        RoundedRect(pittore, dove, {}, Mixed(tema.Primario, tema.Testo, strength * 1.5));
      } else {
        RoundedRect(pittore, dove, tema.Linea, tema.Incavo);
      }
      return;
    case Coppia::Genere::Quieto:
      if (strength > 0) RoundedRect(pittore, dove, {}, Mixed(tema.Finestra, tema.Testo, strength));
      return;
    case Coppia::Genere::Pericolo:
      RoundedRect(pittore, dove, aspetto.Abilitato ? tema.Errore : tema.Linea,
                  aspetto.Abilitato ? Mixed(tema.Superficie, tema.Errore, strength) : tema.Incavo);
      return;
    case Coppia::Genere::Normale:
    case Coppia::Genere::Carta:
      RoundedRect(
          pittore, dove, aspetto.Sopra && aspetto.Abilitato ? tema.Primario : tema.Linea,
          aspetto.Abilitato ? Mixed(tema.Superficie, tema.Primario, strength) : tema.Incavo);
      return;
  }
}

void DipingiSegmento(QPainter& pittore, const QRect& dove, const AspettoSegmento& aspetto) {
  const Tema& tema = Tema::Corrente();
  QColor fill = aspetto.Abilitato ? tema.Superficie : tema.Incavo;
  if (aspetto.Scelto) {
    fill = tema.Selezione;
  } else if (aspetto.Sopra && aspetto.Abilitato) {
    fill = tema.Incavo;
  }
  RoundedRect(pittore, dove, tema.Linea, fill);
  if (aspetto.Scelto) {
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(aspetto.Abilitato ? tema.Primario : tema.Disabilitato);
    pittore.drawRoundedRect(QRectF(dove.left() + 6, dove.bottom() - 3, dove.width() - 12, 3), 1.5,
                            1.5);
  }
}

void DipingiFuoco(QPainter& pittore, const QRect& dove) {
  const Tema& tema = Tema::Corrente();
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setBrush(Qt::NoBrush);
  pittore.setPen(QPen(tema.Superficie, 2));  // the gap, which tells it from a filled surface
  pittore.drawRoundedRect(QRectF(dove).adjusted(3, 3, -3, -3), spazi::kAngolo - 2,
                          spazi::kAngolo - 2);
  pittore.setPen(QPen(tema.Fuoco, 2));
  pittore.drawRoundedRect(QRectF(dove).adjusted(1, 1, -1, -1), spazi::kAngolo, spazi::kAngolo);
  pittore.restore();
}

Stile::Stile() : QProxyStyle(QStringLiteral("Fusion")) {}

int Stile::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return kIndicator;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      return spazi::kStretto;
    case PM_SliderThickness:
      return 24;
    case PM_SliderLength:
      return 20;
    case PM_ScrollBarExtent:
      return 12;
    case PM_ScrollBarSliderMin:
      return 32;
    case PM_DefaultFrameWidth:
      return 2;
    case PM_FocusFrameHMargin:  // what a row's text keeps from its edges
    case PM_HeaderMargin:
      return spazi::kStretto;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int Stile::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
  switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup:
      return 0;
    case SH_ToolTip_WakeUpDelay:
      return 400;
    default:
      return QProxyStyle::styleHint(hint, option, widget, returned);
  }
}

QSize Stile::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
  QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_LineEdit || type == CT_ComboBox || type == CT_HeaderSection) {
    result.setHeight(std::max(result.height(), spazi::kControllo));
  } else if (type == CT_ItemViewItem) {
    result.setHeight(std::max(result.height() + 4, 28));
  }
  return result;
}

QRect Stile::subElementRect(SubElement element, const QStyleOption* option,
                            const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  if (element == SE_LineEditContents) return rect.adjusted(6, 0, -6, 0);
  return rect;
}

QRect Stile::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
  if (control == CC_ComboBox && part == SC_ComboBoxEditField) return rect.adjusted(6, 0, 0, 0);
  if (control == CC_ComboBox && part == SC_ComboBoxArrow) return rect.adjusted(-6, 0, -6, 0);
  return rect;
}

void Stile::drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                         bool enabled, const QString& text, QPalette::ColorRole role) const {
  const auto* control = dynamic_cast<const QWidget*>(painter->device());
  const QString shown = control == nullptr ? text : TestoSottolineato(*control, text);
  const int marks = shown == text ? 0 : Qt::TextShowMnemonic;
  QProxyStyle::drawItemText(painter, rect, flags | marks, palette, enabled, shown, role);
}

void Stile::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
          frame != nullptr && frame->lineWidth > 0) {
        DrawField(*painter, *option, (option->state & State_HasFocus) != 0);
      }
      return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
      DrawIndicator(*painter, *option, element == PE_IndicatorRadioButton);
      return;
    case PE_Frame:
      if (qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
        DrawField(*painter, *option, widget->hasFocus());
        return;
      }
      break;
    case PE_PanelItemViewItem:
      if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
        DrawItem(*painter, *item);
        return;
      }
      break;
    case PE_FrameLineEdit:
    case PE_PanelItemViewRow:
    case PE_PanelScrollAreaCorner:
    case PE_FrameFocusRect:  // every control shows its focus itself
      return;
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Stile::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (element != CE_ComboBoxLabel || combo == nullptr) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  // By itself a long text ends in the middle of a letter.
  QStyleOptionComboBox whole = *combo;
  const QRect field = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget);
  whole.currentText = combo->fontMetrics.elidedText(combo->currentText, Qt::ElideMiddle,
                                                    field.width() - spazi::kStretto);
  QProxyStyle::drawControl(element, &whole, painter, widget);
}

void Stile::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
  if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
    if (control == CC_Slider) {
      DrawSlider(*painter, *slider, subControlRect(control, option, SC_SliderGroove, widget),
                 subControlRect(control, option, SC_SliderHandle, widget));
      return;
    }
    if (control == CC_ScrollBar) {
      DrawScrollBar(*painter, *slider, subControlRect(control, option, SC_ScrollBarSlider, widget));
      return;
    }
  }
  if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
    DrawCombo(*painter, *combo, subControlRect(control, option, SC_ComboBoxArrow, widget));
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace kvr5
