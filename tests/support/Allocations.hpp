#pragma once

/// Counts the allocations of the program that Allocations.cpp is linked into, and makes them fail: what
/// malloc, calloc and realloc are asked for, and so what operator new, the standard containers and Qt
/// are. For programs of one thread, and without sanitizers, which take the place of malloc as well.
struct Allocations
{
  static inline long made = 0;
  static inline long live = 0;      // those not yet freed
  static inline long failed = 0;    // since FullMemory began
  static inline long room = -1;     // for how many more there is memory; -1 for any number
  static inline bool stays = false; // whether memory stays full once it is
};

/// While it lives, memory has room for so many more allocations: the next one fails and, if `stays`, so
/// does every later one. One at a time.
class FullMemory
{
public:
  FullMemory(long room, bool stays) noexcept
  {
    Allocations::failed = 0;
    Allocations::stays = stays;
    Allocations::room = room;
  }
  ~FullMemory() { Allocations::room = -1; }
};
