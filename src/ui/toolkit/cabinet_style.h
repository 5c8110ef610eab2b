// How the standard controls are painted.
#pragma once

class QStyle;

namespace zarvo {

// Buttons, check boxes, option buttons, drop-down lists and scroll bars, in message boxes and
// Zarvo's own windows alike. For QApplication::setStyle, which owns it then.
[[nodiscard]] QStyle* MakeCabinetStyle();

}  // namespace zarvo
