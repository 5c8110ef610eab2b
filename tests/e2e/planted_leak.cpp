// Loses 8 bytes of its own, so that a test can see that the search for leaks, as it is set for the
// driven program, finds so little.
#include <cstdint>
#include <cstdlib>
#include <thread>

int main() {
  // In a thread, whose stack is gone when the search begins: no address of the bytes is left over.
  std::thread([] { new std::uint64_t(1); }).join();
  return EXIT_SUCCESS;
}
