// What stands on the panels fits its place, and is read well.
#include "fakes/contrast.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::IsEmpty;

class FitTest : public PanelTest {
 protected:
  // Names, or else texts, of the controls of a window that show something elided.
  static std::vector<std::string> Elided(const QWidget& window) {
    std::vector<std::string> names;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
      const auto* const control = dynamic_cast<const Control*>(widget);
      if (control == nullptr || control->ElidedText().isEmpty()) continue;
      names.push_back(FromQt(widget->objectName() + u' ' + control->ElidedText()));
    }
    return names;
  }
  static QString Cut(const Control* control) { return control->ElidedText(); }
  static void Show(EmulatorPanel& panel, int page) {
    Press(std::array<Control*, 5>{panel.pages->imgButSnap, panel.pages->imgButSet,
                                  panel.pages->imgButInfo, panel.pages->imgButHelp,
                                  panel.pages->imgButOpts}[static_cast<std::size_t>(page)]);
  }
};

TEST_F(FitTest, CaptionsAndEveryItemOfTheOptionsAreSeenWhole) {
  for (const Emulator& emulator : Emulators()) {
    EmulatorPanel& panel = OpenConfigured(emulator);
    for (int page = 0; page < 5; ++page) Show(panel, page);
    EXPECT_THAT(Elided(panel), IsEmpty());
    for (const OptionSpec& declared : emulator.options) {
      ComboBox* const combo = Combo(panel, declared.name);
      for (int i = 0; combo != nullptr && i < combo->ListCount(); ++i) {
        combo->SetListIndex(i);
        EXPECT_EQ(Cut(combo), QString()) << emulator.word;
      }
    }
  }
}

TEST_F(FitTest, TheLargestNumbersAreSeenWhole) {
  for (const Emulator& emulator : Emulators()) {
    EmulatorPanel& panel = OpenConfigured(emulator);
    for (Label* const counter :
         {panel.games->lblRomCount, panel.games->lblTotal, panel.favourites->lblFavCount}) {
      if (counter == nullptr) continue;
      counter->SetCaption("32767");
      EXPECT_EQ(Cut(counter), QString()) << FromQt(counter->objectName());
    }
  }
  for (const char* const name : {"txtSkipR", "txtSkipC"}) {
    TextBox* const box =
        OpenConfigured(kMame).pages->picSettings->Option(OptionIndex(kMame, name)).text;
    for (const char* const number : {"8888", "-888"}) {
      box->SetText(number);
      EXPECT_EQ(Cut(box), QString()) << name;
    }
  }
}

TEST_F(FitTest, LongNamesOfChipsTakeTwoLines) {
  PutData("Mame", DataHead("1") +
                      "A;a;O;-;G;M;1990;Yes;Yes;Yes;n/a;Yes;a.cpp;[Motorola MC68000];"
                      "NEC D7759;Zilog Z80;n/a;OKI MSM5205 ADPCM;Yamaha YM2151 OPM;"
                      "Namco 52xx;Discrete Sound;\r\n");
  EmulatorPanel& panel = OpenConfigured(kMame);
  Show(panel, 2);
  EXPECT_THAT(Elided(*panel.pages->picInfo), IsEmpty());
}

TEST_F(FitTest, EveryTextIsReadable) {
  for (const Emulator& emulator : Emulators()) {
    EmulatorPanel& panel = OpenConfigured(emulator);
    for (int page = 0; page < 5; ++page) {
      Show(panel, page);
      EXPECT_THAT(FaintCaptions(panel), IsEmpty()) << emulator.word << " " << page;
    }
  }
}

}  // namespace
}  // namespace zarvo
