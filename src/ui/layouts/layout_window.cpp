#include "ui/layouts/layout_window.h"

#include "ui/layouts/apply_layout.h"
#include "ui/layouts/layout_manager.h"

namespace zarvo {

std::unique_ptr<Window> MakeLayoutWindow(const LayoutTools& tools) {
  return std::make_unique<LayoutManager>(tools);
}

void AutoloadLayout(const LayoutTools& tools) {
  ApplyRecords(tools, LayoutStore(tools.files, tools.folders).AutoloadRecords());
}

}  // namespace zarvo
