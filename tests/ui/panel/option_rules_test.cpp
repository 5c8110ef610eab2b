// The options with rules of their own: record and playback, the skip boxes, the vertical display.
#include "ui/panel/option_rules.h"

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"
#include "ui/pickers/file_picker.h"

namespace zarvo {
namespace {

using testing::ElementsAre;

class OptionRulesTest : public PanelTest {
 protected:
  OptionRulesTest() { drive_.Write(R"(C:\Emu\Mame\INP\aliens.inp)", ""); }

  // Clicks the box with a picker that is played; Playback asks for the recording at once.
  void TurnPlaybackOn(const EmulatorPanel& panel, bool ok) {
    const ModalPlay<FilePicker> play([ok](FilePicker& picker) {
      EXPECT_EQ(picker.Caption(), "Choose the INP file");
      EXPECT_EQ(picker.txtShowFiltri->Text(), "*.inp");
      EXPECT_EQ(picker.dirSelExe->Path(), R"(C:\Emu\Mame\INP)");
      EXPECT_FALSE(picker.drvSelExe->Enabled() || picker.dirSelExe->Enabled());
      if (ok) {
        picker.filSelExe->SetListIndex(0);
        picker.cmdOk->click();
      } else {
        picker.cmdCancel->click();
      }
    });
    Press(Check(panel, "chkPlayback"));
  }
};

TEST_F(OptionRulesTest, RecordIsRedAndBoldAndExcludesPlayback) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  CheckBox* const record = Check(panel, "chkRecord");
  CheckBox* const playback = Check(panel, "chkPlayback");
  const auto look = [&] {
    return std::string(record->Value() == 1 ? "record " : "") +
           (playback->Value() == 1 ? "playback " : "") + std::to_string(record->ForeColor().value) +
           (record->font().bold() ? " bold" : "") + playback->ToolTipText();
  };
  Press(record);
  EXPECT_EQ(look(), "record 128 bold Playback joystick input from file \"*.inp\" ");
  // Both go off, and no picker opens; the next click turns the wanted one on.
  Press(playback);
  EXPECT_EQ(look(), "0 Playback joystick input from file \"*.inp\" ");
  TurnPlaybackOn(panel, false);
  EXPECT_EQ(look(), "0 Playback:  <> ") << "Cancel";
  TurnPlaybackOn(panel, true);
  EXPECT_EQ(look(), "playback 0 Playback:  <aliens.inp> ");
  EXPECT_EQ(panel.recording->lblHideInp, "aliens.inp");
  Press(record);
  EXPECT_EQ(look(), "0 Playback:  <aliens.inp> ");
  Press(record);
  EXPECT_EQ(look(), "record 128 bold Playback:  <aliens.inp> ");
  EXPECT_EQ(panel.recording->lblHideInp, "aliens.inp") << "kept";
}

TEST_F(OptionRulesTest, AMissingFolderOfRecordingsIsToldAndPlaybackStaysOff) {
  std::filesystem::remove_all(drive_.Host(R"(C:\Emu\Mame\INP)"));
  EmulatorPanel& panel = OpenConfigured(kMame);
  Press(Check(panel, "chkPlayback"));
  EXPECT_THAT(TakeBoxes(),
              ElementsAre("! There is no folder with recordings:|C:\\Emu\\Mame\\INP|Record a game "
                          "first, or make this folder and put recordings in it."));
  EXPECT_EQ(Check(panel, "chkPlayback")->Value(), 0);
}

// It is no field of the record: a record leaves it, a game without one clears it.
TEST_F(OptionRulesTest, PlaybackStaysFromGameToGameWithARecord) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  Press(panel.pages->imgButSet);
  PressEntry(panel.games->lstRom, 3);
  PressEntry(panel.games->lstRom, 0);  // both have a record now
  TurnPlaybackOn(panel, true);
  PressEntry(panel.games->lstRom, 3);
  EXPECT_EQ(Check(panel, "chkPlayback")->Value(), 1);
  PressEntry(panel.games->lstRom, 4);
  EXPECT_EQ(Check(panel, "chkPlayback")->Value(), 0);
  Check(panel, "chkRecord")->SetValue(1);
  PressEntry(panel.games->lstRom, 0);
  EXPECT_EQ(Check(panel, "chkRecord")->ForeColor().value, 0U);
  PressEntry(panel.games->lstRom, 4);
  EXPECT_EQ(Check(panel, "chkRecord")->ForeColor().value, 128U) << "a stored state shows itself";
}

TEST_F(OptionRulesTest, AGameThatRecordsByTheDefaultsEndsThePlayback) {
  EmulatorPanel& panel = OpenConfigured(kMame);
  Press(panel.pages->imgButSet);
  Check(panel, "chkRecord")->SetValue(1);
  panel.game->Save("[DEFAULT]");
  Check(panel, "chkRecord")->SetValue(0);
  TurnPlaybackOn(panel, true);
  PressEntry(panel.games->lstRom, 3);
  EXPECT_EQ(Check(panel, "chkRecord")->Value(), 1);
  EXPECT_EQ(Check(panel, "chkPlayback")->Value(), 0);
}

TEST_F(OptionRulesTest, TheSkipBoxesTakeWholeNumbersOnly) {
  struct Key {
    Qt::Key key;
    const char* text;
    Qt::KeyboardModifiers held;
    std::string after;  // of "12" with the cursor at its end; a refused key leaves "0"
  };
  const Key keys[] = {
      {Qt::Key_9, "9", Qt::NoModifier, "129"},      {Qt::Key_9, "9", Qt::KeypadModifier, "129"},
      {Qt::Key_Minus, "-", Qt::NoModifier, "12-"},  {Qt::Key_Minus, "-", Qt::KeypadModifier, "12-"},
      {Qt::Key_Backspace, "", Qt::NoModifier, "1"}, {Qt::Key_Delete, "", Qt::NoModifier, "12"},
      {Qt::Key_A, "a", Qt::NoModifier, "0"},        {Qt::Key_Space, " ", Qt::NoModifier, "0"},
      {Qt::Key_Plus, "+", Qt::KeypadModifier, "0"}, {Qt::Key_Left, "", Qt::NoModifier, "0"},
      {Qt::Key_Shift, "", Qt::ShiftModifier, "0"},  {Qt::Key_Period, ".", Qt::NoModifier, "0"},
      {Qt::Key_Return, "\r", Qt::NoModifier, "0"},  {Qt::Key_F1, "", Qt::NoModifier, "0"},
  };
  const EmulatorPanel& panel = OpenConfigured(kMame);
  for (const bool is_row : {false, true}) {
    TextBox* const box =
        panel.pages->picSettings->Option(OptionIndex(kMame, is_row ? "txtSkipR" : "txtSkipC")).text;
    const std::string refusal =
        std::string(is_row ? "! [Warning!] " : "! ") +
        "Format not valid!  |You must enter only 0-9 or|optionally '-' for negative values";
    for (const Key& at : keys) {
      SCOPED_TRACE(box->objectName().toStdString() + " key " + std::to_string(at.key));
      box->SetText("12");
      box->end(false);
      QKeyEvent event(QEvent::KeyPress, at.key, at.held, QString::fromLatin1(at.text));
      QApplication::sendEvent(box, &event);
      EXPECT_EQ(box->Text(), at.after);
      EXPECT_EQ(TakeBoxes(), std::vector(at.after == "0" ? 1 : 0, refusal));
    }
    box->SetText("7");
    box->setFocus();
    box->end(false);
    PressKey(box, Qt::Key_Backspace);
    EXPECT_EQ(box->Text(), "0") << "never empty";
    EXPECT_EQ(FromQt(box->selectedText()), "0") << "what is typed next replaces it";
    box->SetText("123456");
    EXPECT_EQ(box->Text(), is_row ? "1234" : "123456");
    for (const char* pasted : {"1,2", "~", "\xE9"}) {
      box->selectAll();
      box->insert(ToQt(pasted));
      EXPECT_EQ(box->Text(), "0") << pasted;
    }
    EXPECT_FALSE(box->testAttribute(Qt::WA_InputMethodEnabled));
  }
}

TEST_F(OptionRulesTest, TheVerticalDisplayOpensItsList) {
  PutSettings(kM72, "\"Dragon Breed\",\"C:\\r\",1,0,1,0,0,0,0,0,1,0\r\n");
  EmulatorPanel& panel = OpenConfigured(kM72);
  ComboBox* const modes = Combo(panel, "cboVR");
  EXPECT_FALSE(modes->Enabled());
  modes->SetListIndex(1);
  Press(Check(panel, "chkVertDisplay"));
  EXPECT_TRUE(modes->Enabled());
  Press(Check(panel, "chkVertDisplay"));
  EXPECT_FALSE(modes->Enabled());
  EXPECT_EQ(modes->ListIndex(), 1);
  PressEntry(panel.favourites->lstPref, 1);
  EXPECT_TRUE(modes->Enabled()) << "by the record";
  PressEntry(panel.favourites->lstPref, 0);
  EXPECT_FALSE(modes->Enabled());
}

}  // namespace
}  // namespace zarvo
