#pragma once

#include <cstdint>

namespace orv::foundation {

/// The choice between a text in the user's language and a plain text.
enum class LocaleAware : std::uint8_t
{
  No = 0,  ///< Plain text.
  Yes = 1, ///< Text in the user's language.
};

} // namespace orv::foundation
