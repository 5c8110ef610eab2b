// Pieces that the pages of a panel are made of, each with the look of its group.
#pragma once

#include <string_view>

#include "core/platform/twips.h"
#include "ui/toolkit/colour.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"

namespace zarvo {

// The labels that serve as buttons, by what they do. Each kind has colours at rest and under the
// mouse.
enum class ButtonKind {
  kPath,   // paths and the scan
  kSize,   // large, middle, short
  kClose,  // closes the panel
  kBulk,   // erases many things at once
};

// A label with the caption in the middle that can be pressed by mouse and keyboard.
Label* MakeButton(QWidget* parent, ButtonKind kind, const TwipRect& place,
                  std::string_view caption);

// The colours of a button at rest, and those under the mouse.
void Rest(Label* button, ButtonKind kind);
void Highlight(Label* button, ButtonKind kind);

// A small text on a page.
Label* MakeCaption(QWidget* parent, const TwipRect& place, std::string_view text);

// The heading of a page.
Label* MakeHeading(QWidget* parent, const TwipRect& place, std::string_view text);

// A frame with its caption, on a page.
Frame* MakeFrame(QWidget* parent, const TwipRect& place, std::string_view caption);

}  // namespace zarvo
