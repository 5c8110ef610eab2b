// Panels and a main window that are nothing but their places, and write down what is asked of them.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "shell/app_state.h"
#include "shell/section_host.h"

namespace zarvo {

class RecordingSections : public SectionHost, public MainPlace {
 public:
  explicit RecordingSections(AppState& app) : app_(app) {}

  // A panel that stands open.
  void Stand(Emulator emulator, const TwipRect& place) {
    app_.ShowWord(emulator) = "SI";
    places[emulator] = place;
  }

  void OpenSection(const EmulatorProfile& profile) override {
    told.push_back("open " + std::string(profile.section_word));
    if (!without_data_file.contains(profile.emulator)) Stand(profile.emulator, {});
  }
  void SaveOpenPanels() override {}
  void CloseOpenPanels() override {
    told.emplace_back("close all");
    for (const auto& [emulator, place] : places) app_.ShowWord(emulator) = "NO";
    places.clear();
  }
  [[nodiscard]] std::optional<TwipRect> PanelPlace(Emulator emulator) const override {
    const auto found = places.find(emulator);
    return found == places.end() ? std::nullopt : std::optional(found->second);
  }
  void SetPanelPlace(Emulator emulator, const TwipRect& place) override {
    if (places.contains(emulator)) places[emulator] = place;
  }
  void ResetClearLabels() override {}
  [[nodiscard]] int MainLeft() const override { return main.left; }
  [[nodiscard]] int MainTop() const override { return main.top; }
  void SetMainPlace(int top, int left) override {
    told.emplace_back("main");
    main = {.left = left, .top = top};
  }
  void ResetCommands() override {}

  std::set<Emulator> without_data_file;
  std::map<Emulator, TwipRect> places;
  TwipRect main{.left = 500, .top = 400};
  std::vector<std::string> told;

 private:
  AppState& app_;
};

}  // namespace zarvo
