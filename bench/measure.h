// Measuring one piece of work as a ratio to a bare pass over the same bytes.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvo::bench {

// Reads a file into one buffer that lives as long as the object, and counts its line ends.
class BarePass {
 public:
  std::size_t CountLines(const std::string& host_path);

 private:
  std::vector<char> buffer_;
};

struct Work {
  std::string_view name;
  int games;
  double target;  // the largest ratio that is good enough
  std::function<void()> bare;
  std::function<void()> measured;
  // Puts back what `measured` changes; not measured. May be empty.
  std::function<void()> reset = {};
};

// Only works whose name holds `part` are measured from now on.
void MeasureOnly(std::string_view part);

void PrintTableHead();

// Runs both by turns and prints medians of the times, and median and quartiles of the ratio of each
// pair of runs. False if the median ratio is above the target.
bool Measure(const Work& work);

// Stops the program with a message when a benchmark doesn't do what it should measure.
void Check(bool holds, std::string_view what);

}  // namespace zarvo::bench
