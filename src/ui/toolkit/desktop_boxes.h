// Message boxes on the player's desktop.
#pragma once

#include "core/platform/message_boxes.h"

namespace zarvo {

class DesktopBoxes : public MessageBoxes {
 public:
  BoxAnswer Show(BoxIcon icon, BoxButtons buttons, std::string_view title,
                 std::string_view text) override;
};

}  // namespace zarvo
