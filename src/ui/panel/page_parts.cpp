#include "ui/panel/page_parts.h"

namespace zarvo {
namespace {

struct ButtonColours {
  Colour rest_back;
  Colour rest_fore;
  Colour hover_back;
  Colour hover_fore;
};

ButtonColours ColoursOf(ButtonKind kind) {
  switch (kind) {
    case ButtonKind::kPath:
      return {kBluegrey, kWhite, kSlate, kYellow};
    case ButtonKind::kSize:
      return {kSlate, kWhite, kBluegrey, kYellow};
    case ButtonKind::kClose:
      return {kLavender, kDarkRed, kDarkRed, kWhite};
    case ButtonKind::kBulk:
      return {kTerracotta, kWhite, kBrightTerracotta, kYellow};
  }
  return {};
}

}  // namespace

Label* MakeButton(QWidget* parent, ButtonKind kind, const TwipRect& place,
                  std::string_view caption) {
  auto* button = new Label(parent);
  button->SetBackStyle(BackStyle::kOpaque);
  button->SetAlign(TextAlign::kCentre);
  button->SetRaised(true);
  button->SetPressable(true);
  button->SetCaption(caption);
  button->SetPlace(place);
  Rest(button, kind);
  return button;
}

void Rest(Label* button, ButtonKind kind) {
  const ButtonColours colours = ColoursOf(kind);
  button->SetBackColor(colours.rest_back);
  button->SetForeColor(colours.rest_fore);
}

void Highlight(Label* button, ButtonKind kind) {
  const ButtonColours colours = ColoursOf(kind);
  button->SetBackColor(colours.hover_back);
  button->SetForeColor(colours.hover_fore);
}

Label* MakeCaption(QWidget* parent, const TwipRect& place, std::string_view text) {
  auto* label = new Label(parent);
  label->SetForeColor(kInk);
  label->SetCaption(text);
  label->SetPlace(place);
  return label;
}

Label* MakeHeading(QWidget* parent, const TwipRect& place, std::string_view text) {
  Label* label = MakeCaption(parent, place, text);
  label->SetBold(true);
  label->SetAlign(TextAlign::kCentre);
  return label;
}

Frame* MakeFrame(QWidget* parent, const TwipRect& place, std::string_view caption) {
  auto* frame = new Frame(parent);
  frame->SetCaption(caption);
  frame->SetPlace(place);
  return frame;
}

}  // namespace zarvo
