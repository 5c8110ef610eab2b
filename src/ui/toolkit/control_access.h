// What a screen reader learns of windows, grounds, labels and pictures, and how it presses them.
#pragma once

namespace zarvo {

// Makes them readable; called once, before the first one is shown.
void InstallControlAccess();

}  // namespace zarvo
