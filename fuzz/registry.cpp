#include "model/Driver.hpp"

#include <cstddef>
#include <cstdint>

// Any sequence of operations does what it does in the model; a difference ends the program.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  holdAgainstModel({data, size});
  return 0;
}
