#include "layouts/layout_window.h"

#include "layouts/apply_layout.h"
#include "layouts/layout_manager.h"

namespace zarvo {

std::unique_ptr<Window> MakeLayoutWindow(const LayoutTools& tools) {
  return std::make_unique<LayoutManager>(tools);
}

void AutoloadLayout(const LayoutTools& tools) {
  LayoutStore store(tools.files, tools.app);
  const auto autoload = store.ReadKey("AutoloadOnStartup =");
  if (!autoload || *autoload != "1") return;
  const auto name = store.ReadKey("DefaultLayout =");
  if (!name || name->empty()) return;
  Ignore(store.WalkBlock(*name, [&](const LayoutRecord& record) { ApplyRecord(tools, record); }));
}

}  // namespace zarvo
