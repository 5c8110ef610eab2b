// Strokes and fonts that the controls share; strokes are vectors, crisp at every scale factor.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>

namespace zarvo {

// A colour as it looks on something that is disabled.
QColor Faded(const QColor& colour);

// The raised face of a key of the cabinet, or the same pressed down.
void DrawKey(QPainter& painter, const QRect& rect, const QColor& face, bool pressed);

// The ring round what has the keyboard's focus.
void DrawFocus(QPainter& painter, const QRect& rect);

// A ring one pixel wide, along the inside of `rect`.
void DrawRing(QPainter& painter, const QRect& rect, const QColor& colour);

// The recessed edge of a box that holds text or a list.
void DrawSunkenEdge(QPainter& painter, const QRect& rect);

enum class TextAlign { kLeft, kCentre, kRight };

// `text` as it is shown in `room`, in pixels: whole where it fits, else without a part of its
// middle, so that its end is seen, and above all what stands there in brackets. With `wrap`, over
// several lines.
QString Fitted(const QFontMetrics& metrics, const QSize& room, const QString& text, bool wrap);

// `text` if it is elided in that room, else nothing.
QString IfElided(const QFontMetrics& metrics, const QSize& room, const QString& text,
                 bool wrap = false);

// Text in the middle of the height, or with `wrap` from the top down; what doesn't fit is elided.
void DrawCaption(QPainter& painter, const QRect& rect, const QString& text, TextAlign align,
                 bool wrap);

// The font with one thing changed.
QFont InBold(QFont font, bool bold);
QFont InSize(QFont font, int pixels);
QFont Underlined(QFont font, bool underline);

}  // namespace zarvo
