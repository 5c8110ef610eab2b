// The About window, frmAbout: what the program is, and links to its home page and its support.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// Opens an address with the desktop's program for it; what becomes of it isn't looked at.
using AddressOpener = std::function<void(std::string_view address)>;
AddressOpener DesktopOpener();

class AboutWindow : public Window {
 public:
  explicit AboutWindow(AddressOpener open);

  ImageBox* imgZarvo;
  Label* Label1;
  Label* Label2;
  Label* lblVersion;
  Label* lblLatestFiles;
  Label* lblZarvoWeb;
  Label* lblInfoRequest;
  Label* lblEMailMe;
  PushButton* cmdOk;

 private:
  void Build();
  void Wire();

  AddressOpener open_;
};

}  // namespace zarvo
