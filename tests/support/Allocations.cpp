#include "support/Allocations.hpp"

#include <cstddef>
#include <cstdlib>

namespace {

bool fails() noexcept
{
  ++Allocations::made;
  if (Allocations::room != 0) {
    Allocations::room -= Allocations::room > 0 ? 1 : 0;
    return false;
  }
  ++Allocations::failed;
  Allocations::room = Allocations::stays ? 0 : -1;
  return true;
}

void* counted(void* memory) noexcept
{
  Allocations::live += memory != nullptr ? 1 : 0;
  return memory;
}

} // namespace

extern "C" {

// What glibc's functions are called beside the names that this program takes over.
void* systemMalloc(std::size_t) noexcept __asm__("__libc_malloc");
void* systemCalloc(std::size_t, std::size_t) noexcept __asm__("__libc_calloc");
void* systemRealloc(void*, std::size_t) noexcept __asm__("__libc_realloc");
void systemFree(void*) noexcept __asm__("__libc_free");

void* malloc(std::size_t size) noexcept
{
  return fails() ? nullptr : counted(systemMalloc(size));
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
  return fails() ? nullptr : counted(systemCalloc(count, size));
}

void* realloc(void* memory, std::size_t size) noexcept
{
  if (memory == nullptr) {
    return malloc(size);
  }
  return fails() ? nullptr : systemRealloc(memory, size);
}

void free(void* memory) noexcept
{
  Allocations::live -= memory != nullptr ? 1 : 0;
  systemFree(memory);
}

} // extern "C"
