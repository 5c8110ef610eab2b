// What the layouts work with, handed in so that tests can take its place.
#pragma once

#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"
#include "core/platform/program.h"
#include "ui/shell/section_host.h"

namespace zarvo {

struct LayoutTools {
  DosFiles& files;
  const ProgramFolders& folders;
  MessageBoxes& boxes;
  SectionHost& sections;
  MainPlace& main;
};

}  // namespace zarvo
