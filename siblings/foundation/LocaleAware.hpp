#pragma once

#include <cstdint>

namespace orv::foundation {

/// Whether a text is wanted in the user's language or in the program's own.
enum class LocaleAware : std::uint8_t
{
  No = 0,
  Yes = 1,
};

} // namespace orv::foundation
