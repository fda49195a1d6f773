#include "model/Steps.hpp"

// Any sequence of changes does what it does in the model; a difference ends the program.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  auto const* const end = data + size;
  auto const draw = [&](unsigned int bound) { return data == end ? 0 : *data++ % bound; };
  takeSteps(static_cast<unsigned int>(size / 8), draw);
  return 0;
}
