#pragma once

#include <cstdint>

namespace orv::foundation {

/// The choice between a text in the user's language and an untranslated text.
enum class LocaleAware : std::uint8_t
{
  No = 0,  ///< Untranslated text.
  Yes = 1, ///< Text in the user's language.
};

} // namespace orv::foundation
