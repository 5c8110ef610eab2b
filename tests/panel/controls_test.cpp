// Every control that the main window and the panels are told to have, with its texts and its place;
// the list stands in controls.txt.
#include <fstream>
#include <sstream>

#include "panel/panel_fixture.h"
#include "shell/main_window.h"

namespace zarvo {
namespace {

class NamedPanelControlsTest : public PanelTest {
 protected:
  static QList<QWidget*> Named(QWidget& window, const std::string& name) {
    return window.findChildren<QWidget*>(QString::fromStdString(name));
  }
  static std::string CaptionOf(const QWidget* widget) {
    if (const auto* label = dynamic_cast<const Label*>(widget)) return label->Caption();
    if (const auto* check = dynamic_cast<const CheckBox*>(widget)) return check->Caption();
    if (const auto* frame = dynamic_cast<const Frame*>(widget)) return frame->Caption();
    if (const auto* option = dynamic_cast<const OptionButton*>(widget)) {
      return FromQt(option->text());
    }
    return "(no caption)";
  }
  static std::string ItemsOf(const QWidget* widget) {
    std::string items;
    if (const auto* list = dynamic_cast<const ListBox*>(widget)) {
      for (const std::string& name : Names(list)) items += (items.empty() ? "" : "|") + name;
    }
    if (const auto* combo = dynamic_cast<const ComboBox*>(widget)) {
      for (int i = 0; i < combo->ListCount(); ++i) items += (i > 0 ? "|" : "") + combo->List(i);
    }
    return items;
  }
  static std::string TextOf(const QWidget* widget) {
    if (const auto* combo = dynamic_cast<const ComboBox*>(widget)) return combo->Text();
    const auto* box = dynamic_cast<const TextBox*>(widget);
    return box == nullptr ? "(no text)" : box->Text();
  }
  // What a control has of a property, as the list writes it.
  static std::string Has(QWidget* widget, const std::string& property) {
    const auto* control = dynamic_cast<const Control*>(widget);
    if (control == nullptr) return "(no control)";
    const TwipRect place = control->Place();
    const std::string corner = std::to_string(place.left) + " " + std::to_string(place.top);
    if (property == "at") return corner;
    if (property == "place") {
      return corner + " " + std::to_string(place.width) + " " + std::to_string(place.height);
    }
    if (property == "caption") return '"' + CaptionOf(widget) + '"';
    if (property == "tip") return '"' + control->ToolTipText() + '"';
    if (property == "items") return '"' + ItemsOf(widget) + '"';
    if (property == "text") return '"' + TextOf(widget) + '"';
    if (property == "longest") return std::to_string(dynamic_cast<TextBox&>(*widget).maxLength());
    if (property == "disabled") return control->Enabled() ? "(enabled)" : "";
    const auto& button = dynamic_cast<const QAbstractButton&>(*widget);
    return button.isChecked() == (property == "on") ? "" : "(the other)";
  }
  static bool SaysSomewhere(QWidget& window, const std::string& caption) {
    const auto widgets = window.findChildren<QWidget*>();
    return std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
      return '"' + CaptionOf(widget) + '"' == caption;
    });
  }
  static void Check(QWidget& window, const std::string& name, const std::string& property,
                    const std::string& expected) {
    if (name == "*") {
      EXPECT_TRUE(SaysSomewhere(window, expected));
      return;
    }
    const QList<QWidget*> found = Named(window, name);
    if (property == "absent") {
      EXPECT_TRUE(found.isEmpty());
      return;
    }
    ASSERT_EQ(found.size(), 1) << "controls of this name";
    const std::string has = property == "there" ? expected : Has(found.front(), property);
    EXPECT_EQ(has, expected);
  }
};

std::string Replaced(std::string text, std::string_view word) {
  const std::size_t at = text.find("<Emu>");
  return at == std::string::npos ? text : text.replace(at, 5, word);
}

TEST_F(NamedPanelControlsTest, WindowsHaveWhatTheListTells) {
  MainWindow main(files_, app_, boxes_,
                  [](const EmulatorProfile& /*profile*/) { return std::vector<std::string>(); },
                  {});
  std::ifstream list(ZARVO_CONTROLS);
  int checked = 0;
  for (std::string line; std::getline(list, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    std::istringstream fields(line);
    std::string windows, name, property, expected;
    fields >> windows >> name >> property;
    std::getline(fields >> std::ws, expected);
    SCOPED_TRACE(line);
    if (windows == "Main") Check(main, name, property, expected);
    for (const EmulatorProfile& profile : Profiles()) {
      const std::string word(profile.word);
      if (windows != "each" && ("," + windows + ",").find("," + word + ",") == std::string::npos) {
        continue;
      }
      SCOPED_TRACE(word);
      Check(sections_.Panel(profile.emulator), Replaced(name, word), property, expected);
      ++checked;
    }
  }
  EXPECT_GT(checked, 1000) << "the list was cut";
}

// A caption that is cut off can't be read: every letter of a check box must fit.
TEST_F(NamedPanelControlsTest, TheCaptionsOfTheOptionsFit) {
  for (const EmulatorProfile& profile : Profiles()) {
    for (const CheckBox* check : sections_.Panel(profile.emulator).findChildren<CheckBox*>()) {
      QFont font(QStringLiteral("Liberation Sans"));
      font.setPixelSize(11);
      const int wanted = QFontMetrics(font).horizontalAdvance(ToQt(check->Caption())) + 15;
      EXPECT_LE(wanted, check->width()) << profile.word << " " << check->Caption();
    }
  }
}

}  // namespace
}  // namespace zarvo
