#include "ui/toolkit/cabinet_style.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionSlider>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/drawing.h"

namespace zarvo {
namespace {

constexpr int kScrollBarWidth = 10;
constexpr int kSmallestSlider = 16;
constexpr int kBoxSign = 32;
constexpr int kIndicator = 12;
constexpr int kIndicatorGap = 3;
constexpr int kButtonMargin = 3;
constexpr int kArrowWidth = 9;
constexpr int kComboTextLeft = 3;

// The sign of a message box, large enough to be brought down at every scale factor.
QIcon BoxSign(bool warning) {
  constexpr int kSide = 128;
  QPixmap sign(kSide, kSide);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = warning ? QColor(0xFF, 0xC8, 0x5A) : kPeriwinkle.ToQt();
  painter.setPen(QPen(colour, 16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(colour);
  if (warning) {
    painter.drawPolygon(QPolygon({QPoint(64, 14), QPoint(118, 112), QPoint(10, 112)}));
  } else {
    painter.drawEllipse(12, 12, 104, 104);
  }
  painter.setPen(QPen(kInk.ToQt(), 15, Qt::SolidLine, Qt::RoundCap));
  const int top = warning ? 46 : 62;
  painter.drawLine(64, top, 64, top + 30);
  painter.drawPoint(64, warning ? 102 : 36);
  return sign;
}

// Fusion with slim scroll bars and the program's own signs in the palette.
class CabinetStyle : public QProxyStyle {
 public:
  CabinetStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    if (metric == PM_ScrollBarExtent) return kScrollBarWidth;
    if (metric == PM_MessageBoxIconSize) return kBoxSign;
    if (metric == PM_ScrollBarSliderMin) return kSmallestSlider;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override {
    if (icon == SP_MessageBoxWarning) return BoxSign(true);
    if (icon == SP_MessageBoxInformation) return BoxSign(false);
    return QProxyStyle::standardIcon(icon, option, widget);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    if (control == CC_ScrollBar) {
      return ScrollBarPart(*static_cast<const QStyleOptionSlider*>(option), part);
    }
    const QRect& box = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
      return box.adjusted(kComboTextLeft, 0, -kArrowWidth - 1, 0);
    }
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) {
      return {box.right() - kArrowWidth, box.top() + 1, kArrowWidth, box.height() - 2};
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
  }

  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override {
    switch (element) {
      case SE_CheckBoxContents:
      case SE_RadioButtonContents:
        return option->rect.adjusted(kIndicator + kIndicatorGap, 0, 0, 0);
      case SE_CheckBoxClickRect:
      case SE_RadioButtonClickRect:
        return option->rect;
      case SE_PushButtonContents:
        return option->rect.adjusted(kButtonMargin, 0, -kButtonMargin, 0);
      default:
        return QProxyStyle::subElementRect(element, option, widget);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    switch (element) {
      case CE_PushButton:
        return DrawPushButton(*static_cast<const QStyleOptionButton*>(option), *painter);
      case CE_CheckBox:
        return DrawCheckBox(*static_cast<const QStyleOptionButton*>(option), *painter);
      case CE_RadioButton:
        return DrawOptionButton(*static_cast<const QStyleOptionButton*>(option), *painter);
      case CE_ComboBoxLabel:
        return DrawComboLabel(*static_cast<const QStyleOptionComboBox*>(option), *painter);
      default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    switch (control) {
      case CC_ScrollBar:
        return DrawScrollBar(*static_cast<const QStyleOptionSlider*>(option), *painter);
      case CC_ComboBox:
        return DrawCombo(*static_cast<const QStyleOptionComboBox*>(option), *painter);
      default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

 private:
  static bool Has(const QStyleOption& option, StateFlag flag) {
    return option.state.testFlag(flag);
  }

  // A colour of a control, faded where that is disabled.
  static QColor Shown(const QStyleOption& option, const QColor& colour) {
    return Has(option, State_Enabled) ? colour : Faded(colour);
  }

  // A caption whose "&" marks the letter that is a key, as Qt has it; elided where it doesn't fit.
  static void DrawMarked(QPainter& painter, const QRect& room, const QString& marked,
                         TextAlign align) {
    QString text = marked;
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 1)) {
      text.remove(at, 1);
    }
    if (text.size() == marked.size() ||
        !IfElided(painter.fontMetrics(), room.size(), text).isEmpty()) {
      DrawCaption(painter, room, text, align, false);
    } else {
      const int across = align == TextAlign::kLeft ? Qt::AlignLeft : Qt::AlignHCenter;
      painter.drawText(room, across | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                       marked);
    }
  }

  void DrawPushButton(const QStyleOptionButton& button, QPainter& painter) const {
    const QColor face = kSlate.ToQt().darker(128);  // white is read on its lightest shine
    const bool enabled = Has(button, State_Enabled);
    const QColor shown =
        Shown(button, Has(button, State_MouseOver) && enabled ? face.lighter(115) : face);
    DrawKey(painter, button.rect, shown, Has(button, State_Sunken));
    if (Has(button, State_HasFocus)) {
      DrawFocus(painter, button.rect);
    } else if (button.features.testFlag(QStyleOptionButton::DefaultButton) && enabled) {
      DrawRing(painter, button.rect, kMoon.ToQt());
    }
    painter.setPen(Shown(button, Qt::white));
    DrawMarked(painter, subElementRect(SE_PushButtonContents, &button, nullptr), button.text,
               TextAlign::kCentre);
  }

  static QRectF IndicatorRect(const QStyleOptionButton& box) {
    const int top = (box.rect.height() - kIndicator) / 2;  // whole pixels, for sharp edges
    return {0.5, top + 0.5, kIndicator - 1.0, kIndicator - 1.0};
  }

  static void PrepareIndicator(const QStyleOptionButton& box, QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kSlate.ToQt(), 1));
    painter.setBrush(Shown(box, Qt::white));
  }

  // What stands beside the indicator, and the ring round all if it has the focus.
  void DrawBeside(SubElement place, const QStyleOptionButton& box, QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Shown(box, box.palette.color(QPalette::Active, QPalette::WindowText)));
    DrawMarked(painter, subElementRect(place, &box, nullptr), box.text, TextAlign::kLeft);
    if (Has(box, State_HasFocus)) DrawFocus(painter, box.rect);
  }

  void DrawCheckBox(const QStyleOptionButton& box, QPainter& painter) const {
    PrepareIndicator(box, painter);
    const QRectF frame = IndicatorRect(box);
    painter.drawRect(frame);
    if (Has(box, State_On)) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(kInk.ToQt(), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      const QPointF tick[] = {{2.5, 5.5}, {4.7, 8.2}, {8.8, 2.8}};
      painter.translate(frame.topLeft());
      painter.drawPolyline(tick, 3);
      painter.translate(-frame.topLeft());
    }
    DrawBeside(SE_CheckBoxContents, box, painter);
  }

  void DrawOptionButton(const QStyleOptionButton& button, QPainter& painter) const {
    PrepareIndicator(button, painter);
    const QRectF ring = IndicatorRect(button);
    painter.drawEllipse(ring);
    if (Has(button, State_On)) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(kInk.ToQt());
      painter.drawEllipse(ring.adjusted(3, 3, -3, -3));
    }
    DrawBeside(SE_RadioButtonContents, button, painter);
  }

  // The box; its item is drawn over it, then DrawComboLabel puts the edge round both.
  void DrawCombo(const QStyleOptionComboBox& combo, QPainter& painter) const {
    const QColor back = Shown(combo, combo.palette.color(QPalette::Active, QPalette::Button));
    painter.fillRect(combo.rect, back);
    const QRect arrow = subControlRect(CC_ComboBox, &combo, SC_ComboBoxArrow, nullptr);
    DrawKey(painter, arrow, back.darker(112), Has(combo, State_On));
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(arrow).center();
    const QPointF tip[] = {centre + QPointF(-3, -1.5), centre + QPointF(3, -1.5),
                           centre + QPointF(0, 2)};
    painter.setPen(Qt::NoPen);
    painter.setBrush(Shown(combo, combo.palette.color(QPalette::Active, QPalette::ButtonText)));
    painter.drawConvexPolygon(tip, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }

  void DrawComboLabel(const QStyleOptionComboBox& combo, QPainter& painter) const {
    painter.setPen(Shown(combo, combo.palette.color(QPalette::Active, QPalette::ButtonText)));
    DrawCaption(painter, subControlRect(CC_ComboBox, &combo, SC_ComboBoxEditField, nullptr),
                combo.currentText, TextAlign::kLeft, false);
    DrawSunkenEdge(painter, combo.rect);
    if (Has(combo, State_HasFocus)) DrawFocus(painter, combo.rect);
  }

  static void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) {
    painter.fillRect(bar.rect, kDeepNight.ToQt());
    const bool held = bar.activeSubControls.testFlag(SC_ScrollBarSlider);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush((held ? kPeriwinkle : kSlate).ToQt());
    painter.drawRoundedRect(QRectF(ScrollBarPart(bar, SC_ScrollBarSlider)).adjusted(2, 2, -2, -2),
                            3, 3);
  }

  // The whole bar is the groove: there are no arrow buttons.
  static QRect ScrollBarPart(const QStyleOptionSlider& bar, SubControl part) {
    const bool across = bar.orientation == Qt::Horizontal;
    const int length = across ? bar.rect.width() : bar.rect.height();
    const int range = bar.maximum - bar.minimum;
    const int steps = range + bar.pageStep;
    const int slider =
        range <= 0 ? length
                   : qBound(kSmallestSlider,
                            static_cast<int>(qint64{length} * bar.pageStep / steps), length);
    const int place = sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                              length - slider, bar.upsideDown);
    const auto cut = [&](int from, int size) {
      return across ? QRect(bar.rect.left() + from, bar.rect.top(), size, bar.rect.height())
                    : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), size);
    };
    switch (part) {
      case SC_ScrollBarSlider:
        return cut(place, slider);
      case SC_ScrollBarGroove:
        return bar.rect;
      case SC_ScrollBarSubPage:
        return cut(0, place);
      case SC_ScrollBarAddPage:
        return cut(place + slider, length - place - slider);
      default:
        return {};
    }
  }
};

}  // namespace

QStyle* MakeCabinetStyle() { return new CabinetStyle; }

}  // namespace zarvo
