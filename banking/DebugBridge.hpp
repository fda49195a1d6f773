#pragma once

#include <QDebug>
#include <QString>

#include <sstream>

namespace orv::banking {

// Writes what the value's standard-stream operator writes, as one QString: no type formats itself
// twice. Nothing reaches `debug` when that operator throws.
template <typename T>
QDebug writeStreamForm(QDebug debug, T const& value)
{
  std::ostringstream text;
  text.exceptions(std::ios_base::badbit); // or a full memory would cut the text short, unnoticed
  text << value;
  return debug << QString::fromUtf8(text.view());
}

} // namespace orv::banking
