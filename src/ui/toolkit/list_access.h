// What a screen reader learns of a list box: its entries, and which one is selected.
#pragma once

namespace zarvo {

// Makes list boxes readable; called once, before the first one is shown.
void InstallListAccess();

}  // namespace zarvo
