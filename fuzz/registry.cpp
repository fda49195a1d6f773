#include "model/Steps.hpp"
#include "support/ScopedTranslator.hpp"

// Any sequence of changes does what it does in the model; a difference ends the program.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  ScopedTranslator const translator(&placeholdersOf);
  takeSteps({data, size});
  return 0;
}
