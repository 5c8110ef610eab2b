// Any bytes as what a run leaves: DOSBox's mark and the output of a native program. What the player
// is told of it is text that a box can show.
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/platform/child_process.h"

namespace {

using namespace zarvo;

// Leaves the bytes in the mark, or as output.
class Left : public ChildRunner {
 public:
  Left(std::string bytes, std::filesystem::path mark)
      : bytes_(std::move(bytes)), mark_(std::move(mark)) {}
  RunOutcome Run(const HostCommand& /*command*/) override {
    if (!mark_.empty()) std::ofstream(mark_, std::ios::binary) << bytes_;
    return {.started = true, .exit_code = 1, .last_output = bytes_};
  }

 private:
  std::string bytes_;
  std::filesystem::path mark_;
};

void Check(const RunPlan& plan, const RunOutcome& outcome) {
  const Status told = JudgeRun(plan, outcome, std::chrono::milliseconds(1));
  if (told) std::abort();
  const std::string& text = told.error().message;
  const bool plain = std::all_of(text.begin(), text.end(), [](char c) {
    return c == '\r' || static_cast<unsigned char>(c) >= ' ';
  });
  if (!plain || text.size() > 4096) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), std::min(size, kKeptOutput));
  Left native(bytes, {});
  Check({}, *CarryOut({}, native));
  const std::filesystem::path mark = "/tmp/zarvo-fuzz-" + std::to_string(getpid());
  const RunPlan dos{.command = {}, .folder_files = {{mark, "waiting"}}, .run_mark = mark};
  Left dosbox(bytes, mark);
  const auto outcome = CarryOut(dos, dosbox);
  if (!outcome || std::filesystem::exists(mark)) std::abort();
  if (outcome->program_failed && outcome->never_began) std::abort();
  Check(dos, *outcome);
  return 0;
}
