#include "model/Steps.hpp"
#include "support/ScopedTranslator.hpp"

// Any sequence of changes does what it does in the model; a difference ends the program.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  ScopedTranslator const translator(&placeholdersOf);
  auto const* const end = data + size;
  takeSteps(size / 8, [&](unsigned int bound) { return data == end ? 0 : *data++ % bound; });
  return 0;
}
