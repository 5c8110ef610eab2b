#include "ui/toolkit/style.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>

#include "ui/toolkit/colour.h"
#include "ui/toolkit/control_access.h"
#include "ui/toolkit/drawing.h"
#include "ui/toolkit/list_access.h"
#include "ui/toolkit/picture.h"

// The drawings lie in a library, which the linker would leave out; this call stands outside of
// every namespace, as the resource system asks.
static void LinkPictures() { Q_INIT_RESOURCE(pictures); }

namespace zarvo {
namespace {

constexpr int kScrollBarWidth = 10;
constexpr int kSmallestSlider = 16;
constexpr int kBoxSign = 32;
constexpr std::chrono::milliseconds kIconDelay{100};  // the first window is drawn before

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
    if (control != CC_ScrollBar) {
      return QProxyStyle::subControlRect(control, option, part, widget);
    }
    return ScrollBarPart(*static_cast<const QStyleOptionSlider*>(option), part);
  }

  // Those of the message boxes; the program's own buttons paint themselves.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element != CE_PushButtonBevel) {
      QProxyStyle::drawControl(element, option, painter, widget);
      return;
    }
    const auto& button = *static_cast<const QStyleOptionButton*>(option);
    DrawButton(*painter, button.rect,
               {.enabled = button.state.testFlag(State_Enabled),
                .is_default = button.features.testFlag(QStyleOptionButton::DefaultButton),
                .hovered = button.state.testFlag(State_MouseOver),
                .down = button.state.testFlag(State_Sunken),
                .focused = button.state.testFlag(State_HasFocus)});
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    if (control == CC_ScrollBar) {
      const auto& bar = *static_cast<const QStyleOptionSlider*>(option);
      painter->fillRect(bar.rect, kDeepNight.ToQt());
      const bool held = bar.activeSubControls.testFlag(SC_ScrollBarSlider);
      painter->setRenderHint(QPainter::Antialiasing);
      painter->setPen(Qt::NoPen);
      painter->setBrush((held ? kPeriwinkle : kSlate).ToQt());
      painter->drawRoundedRect(
          QRectF(ScrollBarPart(bar, SC_ScrollBarSlider)).adjusted(2, 2, -2, -2), 3, 3);
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

 private:
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

QPalette CabinetPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, kNight.ToQt());
  palette.setColor(QPalette::WindowText, kMoon.ToQt());
  palette.setColor(QPalette::Base, QColor(0xF4, 0xF6, 0xFB));
  palette.setColor(QPalette::AlternateBase, QColor(0xE4, 0xE8, 0xF2));
  palette.setColor(QPalette::Text, kInk.ToQt());
  palette.setColor(QPalette::Button, kSlate.ToQt());
  palette.setColor(QPalette::ButtonText, Qt::white);
  palette.setColor(QPalette::Highlight, kSlate.ToQt());
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xF6, 0xF0, 0xDC));
  palette.setColor(QPalette::ToolTipText, kInk.ToQt());
  palette.setColor(QPalette::Link, kPeriwinkle.ToQt());
  palette.setColor(QPalette::PlaceholderText, kSlate.ToQt());
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, Faded(palette.color(QPalette::Active, role)));
  }
  return palette;
}

// Drawn here, so that the desktop needs no plug-in for drawings.
void SetAppIcon() {
  const Picture drawing = Picture::FromResource("app_icon");
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) icon.addPixmap(drawing.ToPixmap(QSize(size, size), 1));
  QGuiApplication::setWindowIcon(icon);
}

// Filled, not drawn as lines: so they lie on whole pixels of the screen at every scale factor.
void DrawEdges(QPainter& painter, const QRect& rect, const QColor& top_left,
               const QColor& bottom_right) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), top_left);
  painter.fillRect(QRect(rect.left(), rect.top(), 1, rect.height()), top_left);
  painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), bottom_right);
  painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()), bottom_right);
}

QString FittedLine(const QFontMetrics& metrics, int room, const QString& text) {
  if (metrics.horizontalAdvance(text) <= room) return text;
  QString halves = metrics.elidedText(text, Qt::ElideMiddle, room);
  const qsizetype start = text.endsWith(u')') ? text.lastIndexOf(u'(') : -1;
  const int dots = metrics.horizontalAdvance(QChar(0x2026));
  if (start < 0 || room < 5 * dots || halves.endsWith(text.mid(start))) return halves;
  // The brackets take more than their half, but not all; those that are longer still lose a part
  // behind the middle, for versions differ at their front and sets at their end.
  const QString brackets = text.mid(start);
  const int brackets_width = metrics.horizontalAdvance(brackets);
  const QString name = metrics.elidedText(text.left(start), Qt::ElideRight,
                                          std::max({room / 5, 2 * dots, room - brackets_width}));
  const int rest = room - metrics.horizontalAdvance(name);
  if (brackets_width <= rest) return name + brackets;
  const QString front = metrics.elidedText(brackets, Qt::ElideRight, rest * 2 / 3);
  const int back_width = rest - metrics.horizontalAdvance(front) + dots;
  return name + front + metrics.elidedText(brackets, Qt::ElideLeft, back_width).mid(1);
}

QString FittedLines(const QFontMetrics& metrics, const QSize& room, const QString& text) {
  const auto fits = [&](const QString& shown) {
    const QSize taken = metrics.boundingRect(QRect({}, room), Qt::TextWordWrap, shown).size();
    return taken.width() <= room.width() && taken.height() <= room.height();
  };
  QString shown = text;
  for (qsizetype kept = text.size() - 1; kept > 0 && !fits(shown); --kept) {
    shown = text.left((kept + 1) / 2) + QChar(0x2026) + text.right(kept / 2);
  }
  return shown;
}

}  // namespace

QColor Faded(const QColor& colour) {
  const QColor grey(0x80, 0x84, 0x94);
  return {(colour.red() + 2 * grey.red()) / 3, (colour.green() + 2 * grey.green()) / 3,
          (colour.blue() + 2 * grey.blue()) / 3};
}

void DrawKey(QPainter& painter, const QRect& rect, const QColor& face, bool pressed) {
  QLinearGradient shine(rect.topLeft(), rect.bottomLeft());
  shine.setColorAt(pressed ? 1 : 0, face.lighter(118));
  shine.setColorAt(pressed ? 0 : 1, face.darker(112));
  painter.fillRect(rect, shine);
  DrawEdges(painter, rect, pressed ? face.darker(160) : face.lighter(145),
            pressed ? face.lighter(130) : face.darker(170));
}

void DrawButton(QPainter& painter, const QRect& rect, const ButtonLook& look) {
  const QColor face = kSlate.ToQt().darker(128);  // white is read on its lightest shine
  const QColor shown = !look.enabled ? Faded(face) : look.hovered ? face.lighter(115) : face;
  DrawKey(painter, rect, shown, look.down);
  if (look.focused) {
    DrawFocus(painter, rect);
  } else if (look.is_default && look.enabled) {
    DrawEdges(painter, rect, kMoon.ToQt(), kMoon.ToQt());
  }
}

void DrawFocus(QPainter& painter, const QRect& rect) {
  const QColor amber(0xFF, 0xC8, 0x5A);
  DrawEdges(painter, rect, amber, amber);
}

void DrawSunkenEdge(QPainter& painter, const QRect& rect) {
  DrawEdges(painter, rect, kDeepNight.ToQt(), kSlate.ToQt());
}

QString Fitted(const QFontMetrics& metrics, const QSize& room, const QString& text, bool wrap) {
  return wrap ? FittedLines(metrics, room, text) : FittedLine(metrics, room.width(), text);
}

QString IfElided(const QFontMetrics& metrics, const QSize& room, const QString& text, bool wrap) {
  return Fitted(metrics, room, text, wrap) == text ? QString() : text;
}

void DrawCaption(QPainter& painter, const QRect& rect, const QString& text, TextAlign align,
                 bool wrap) {
  const int across = align == TextAlign::kLeft     ? Qt::AlignLeft
                     : align == TextAlign::kCentre ? Qt::AlignHCenter
                                                   : Qt::AlignRight;
  const int down = wrap ? Qt::AlignTop | Qt::TextWordWrap : Qt::AlignVCenter | Qt::TextSingleLine;
  painter.drawText(rect, across | down, Fitted(painter.fontMetrics(), rect.size(), text, wrap));
}

QFont InBold(QFont font, bool bold) {
  font.setBold(bold);
  return font;
}

QFont InSize(QFont font, int pixels) {
  font.setPixelSize(pixels);
  return font;
}

QFont Underlined(QFont font, bool underline) {
  font.setUnderline(underline);
  return font;
}

void PrepareApplication() {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void DressUp(QApplication& /*application*/) {
  LinkPictures();
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(11);
  font.setStyleHint(QFont::SansSerif);
  QApplication::setStyle(new CabinetStyle);
  QApplication::setPalette(CabinetPalette());
  QApplication::setFont(font);
  QApplication::setApplicationName(QStringLiteral("zarvo"));
  InstallListAccess();
  InstallControlAccess();
  QTimer::singleShot(kIconDelay, qApp, SetAppIcon);
}

std::future<void> LoadFont(std::function<void()> done) {
  return std::async(std::launch::async, [font = QApplication::font(), done = std::move(done)] {
    QFontMetrics(font).boundingRect(u'M');
    QMetaObject::invokeMethod(qApp, done);
  });
}

}  // namespace zarvo
