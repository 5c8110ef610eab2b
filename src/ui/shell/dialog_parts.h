// What the dialogs share: making a control with its name in its place.
#pragma once

#include <QWidget>
#include <string_view>
#include <utility>

#include "core/platform/twips.h"

namespace zarvo {

// A control on `parent`, which owns it, with its object name and its place. Made in the order in
// which Tab is to walk them.
template <typename ControlType, typename... Args>
ControlType* Put(QWidget* parent, std::string_view name, const TwipRect& place, Args&&... args) {
  auto* control = new ControlType(parent, std::forward<Args>(args)...);
  control->SetName(name);
  control->SetPlace(place);
  return control;
}

// The same for a control with a caption.
template <typename ControlType>
ControlType* PutCaption(QWidget* parent, std::string_view name, const TwipRect& place,
                        std::string_view caption) {
  auto* control = Put<ControlType>(parent, name, place);
  control->SetCaption(caption);
  return control;
}

}  // namespace zarvo
