// The shared state of a program in a folder.
#pragma once

#include <string>
#include <utility>

#include "core/emulators/app_state.h"

namespace zarvo {

inline AppState AppIn(std::string program_folder) {
  AppState app;
  app.ProgramFolder = std::move(program_folder);
  return app;
}

}  // namespace zarvo
