#include "ui/toolkit/drawing.h"

#include <QLinearGradient>
#include <algorithm>

#include "ui/toolkit/colour.h"

namespace zarvo {
namespace {

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

void DrawFocus(QPainter& painter, const QRect& rect) {
  DrawRing(painter, rect, QColor(0xFF, 0xC8, 0x5A));
}

void DrawRing(QPainter& painter, const QRect& rect, const QColor& colour) {
  DrawEdges(painter, rect, colour, colour);
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

}  // namespace zarvo
