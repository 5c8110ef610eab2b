#include "measure.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zarvo::bench {
namespace {

constexpr int kRepetitions = 41;

std::string wanted_part;

double MillisecondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  return took.count();
}

// The value below which `share` of the values lie.
double Quantile(std::vector<double> values, double share) {
  std::sort(values.begin(), values.end());
  return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
}

}  // namespace

std::size_t BarePass::CountLines(const std::string& host_path) {
  const int file = open(host_path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat state {};
  Check(file >= 0 && fstat(file, &state) == 0, "open the file of the bare pass");
  if (buffer_.size() < static_cast<std::size_t>(state.st_size)) {
    buffer_.resize(static_cast<std::size_t>(state.st_size));
  }
  const ssize_t size = read(file, buffer_.data(), buffer_.size());
  close(file);
  Check(size == state.st_size, "read the file of the bare pass");
  std::size_t lines = 0;
  const char* place = buffer_.data();
  const char* const end = place + size;
  while (const void* found = std::memchr(place, '\n', static_cast<std::size_t>(end - place))) {
    ++lines;
    place = static_cast<const char*>(found) + 1;
  }
  return lines;
}

void MeasureOnly(std::string_view part) { wanted_part = part; }

void PrintTableHead() {
  std::printf("%-36s %6s  %9s %9s  %6s  %-13s %6s\n", "work", "games", "bare ms", "work ms",
              "ratio", "quartiles", "target");
}

bool Measure(const Work& work) {
  if (work.name.find(wanted_part) == std::string_view::npos) return true;
  std::vector<double> bare;
  std::vector<double> measured;
  std::vector<double> ratios;
  for (int repetition = -2; repetition < kRepetitions; ++repetition) {
    const double bare_time = MillisecondsOf(work.bare);
    const double time = MillisecondsOf(work.measured);
    if (work.reset) work.reset();
    if (repetition < 0) continue;
    bare.push_back(bare_time);
    measured.push_back(time);
    ratios.push_back(time / bare_time);
  }
  const double ratio = Quantile(ratios, 0.5);
  const bool good = ratio <= work.target;
  std::printf("%-36s %6d  %9.3f %9.3f  %6.2f  %5.2f - %5.2f %6.1f%s\n",
              std::string(work.name).c_str(), work.games, Quantile(bare, 0.5),
              Quantile(measured, 0.5), ratio, Quantile(ratios, 0.25), Quantile(ratios, 0.75),
              work.target, good ? "" : "  above");
  std::fflush(stdout);
  return good;
}

void Check(bool holds, std::string_view what) {
  if (holds) return;
  std::fprintf(stderr, "bench: failed to %s\n", std::string(what).c_str());
  std::exit(2);
}

}  // namespace zarvo::bench
