// The details page: all fields of the game's record.
#pragma once

#include <string_view>
#include <vector>

#include "core/catalogue/game_details.h"
#include "core/emulators/emulator.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"

namespace zarvo {

class InfoPage : public PictureBox {
 public:
  InfoPage(QWidget* parent, const Emulator& emulator);

  // Sets the labels in the order of the fields. A field that says nothing leaves its label.
  void ShowRecord(const GameRecord& record);

  // The label of a field.
  [[nodiscard]] Label* FieldLabel(Field field) const;

  Label* lblInfoSamples;

 private:
  void BuildFrames();
  void BuildRows();
  Label* Row(const TwipRect& place, int caption_width, std::string_view caption,
             std::string_view name);

  std::vector<Label*> labels_;  // in the order of the fields
};

}  // namespace zarvo
