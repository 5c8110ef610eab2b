// Every control that the main window and the panels are told to have, with its texts and its place;
// the list stands in controls.txt.
#include <fstream>
#include <map>
#include <sstream>

#include "ui/panel/panel_fixture.h"
#include "ui/shell/main_window.h"

namespace zarvo {
namespace {

class NamedPanelControlsTest : public PanelTest {
 protected:
  static std::string CaptionOf(const QWidget* widget) {
    if (const auto* label = dynamic_cast<const Label*>(widget)) return label->Caption();
    if (const auto* check = dynamic_cast<const CheckBox*>(widget)) return check->Caption();
    if (const auto* frame = dynamic_cast<const Frame*>(widget)) return frame->Caption();
    const auto* option = dynamic_cast<const OptionButton*>(widget);
    return option == nullptr ? "(no caption)" : FromQt(option->text());
  }
  static std::string ItemsOf(const QWidget* widget) {
    if (const auto* list = dynamic_cast<const ListBox*>(widget)) return Entries(list);
    return Entries(&dynamic_cast<const ComboBox&>(*widget));
  }
  static std::string TextOf(const QWidget* widget) {
    if (const auto* combo = dynamic_cast<const ComboBox*>(widget)) return combo->Text();
    return dynamic_cast<const TextBox&>(*widget).Text();
  }
  // What a control has of a property, as the list writes it.
  static std::string Has(QWidget* widget, const std::string& property) {
    const auto& control = dynamic_cast<const Control&>(*widget);
    const auto [left, top, width, height] = control.Place();
    const std::string corner = std::to_string(left) + " " + std::to_string(top);
    if (property == "there") return "";
    if (property == "at") return corner;
    if (property == "place") {
      return corner + " " + std::to_string(width) + " " + std::to_string(height);
    }
    if (property == "caption") return '"' + CaptionOf(widget) + '"';
    if (property == "tip") return '"' + control.ToolTipText() + '"';
    if (property == "items") return '"' + ItemsOf(widget) + '"';
    if (property == "text") return '"' + TextOf(widget) + '"';
    if (property == "longest") return std::to_string(dynamic_cast<TextBox&>(*widget).maxLength());
    if (property == "disabled") return control.Enabled() ? "(enabled)" : "";
    const auto& button = dynamic_cast<const QAbstractButton&>(*widget);
    return button.isChecked() == (property == "on") ? "" : "(the other)";
  }
  static void Check(const QWidget& window, const std::string& name, const std::string& row) {
    const std::string property = row.substr(0, row.find(' '));
    const std::string expected = property == row ? "" : row.substr(property.size() + 1);
    if (property == "captions") {
      std::vector<std::string> said;
      for (const QWidget* widget : window.findChildren<QWidget*>()) {
        said.push_back(CaptionOf(widget));
      }
      const auto wanted = Split(expected.substr(1, expected.size() - 2), "|");
      for (const std::string& caption : wanted) EXPECT_THAT(said, testing::Contains(caption));
      return;
    }
    const auto found = window.findChildren<QWidget*>(QString::fromStdString(name));
    ASSERT_EQ(found.size(), property == "absent" ? 0 : 1) << "controls called " << name;
    for (QWidget* widget : found) EXPECT_EQ(Has(widget, property), expected) << name;
  }
};

TEST_F(NamedPanelControlsTest, WindowsHaveWhatTheListTells) {
  MainWindow main(files_, folders_, boxes_,
                  [](const Emulator& /*emulator*/) { return std::vector<std::string>(); }, {});
  std::map<std::string, QWidget*> all = {{"Main", &main}};
  for (const Emulator& emulator : kTested) {
    all.emplace(emulator.word, &sections_.Panel(emulator));
  }
  std::ifstream list(ZARVO_CONTROLS);
  int checked = 0;
  for (std::string line; std::getline(list, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    for (const auto& [word, window] : all) {
      SCOPED_TRACE(word + ": " + line);
      std::string row = line;
      for (std::size_t at; (at = row.find("<Emu>")) != std::string::npos;) row.replace(at, 5, word);
      std::istringstream fields(row);
      std::string windows, names, properties;
      fields >> windows >> names;
      std::getline(fields >> std::ws, properties);
      const bool meant = windows == "each"
                             ? word != "Main"
                             : testing::Matches(testing::Contains(word))(Split(windows, ","));
      if (!meant) continue;
      for (const std::string& name : Split(names, ",")) {
        for (const std::string& property : Split(properties, "; ")) {
          Check(*window, name, property);
          ++checked;
        }
      }
    }
  }
  EXPECT_GT(checked, 800) << "the list was cut";
}

// A caption that is cut off can't be read: every letter of a check box must fit.
TEST_F(NamedPanelControlsTest, TheCaptionsOfTheOptionsFit) {
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(11);
  for (const Emulator& emulator : kTested) {
    for (const CheckBox* check : sections_.Panel(emulator).findChildren<CheckBox*>()) {
      const int wanted = QFontMetrics(font).horizontalAdvance(ToQt(check->Caption())) + 15;
      EXPECT_LE(wanted, check->width()) << emulator.word << " " << check->Caption();
    }
  }
}

}  // namespace
}  // namespace zarvo
