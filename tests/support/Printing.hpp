#pragma once

#include <QDebug>
#include <QString>

#include <ostream>
#include <sstream>

// GoogleTest shows a QString as text.
inline void PrintTo(QString const& text, std::ostream* stream)
{
  *stream << '"' << text.toStdString() << '"';
}

/// What the value writes to a standard stream.
template <typename T>
QString streamed(T const& value)
{
  std::ostringstream stream;
  stream << value;
  return QString::fromStdString(stream.str());
}

/// What the value writes to a debug stream in its default mode.
template <typename T>
QString debugged(T const& value)
{
  QString text;
  QDebug(&text) << value;
  return text;
}

/// What the value writes to a debug stream without quotes and spaces.
template <typename T>
QString debuggedPlainly(T const& value)
{
  QString text;
  QDebug(&text).noquote().nospace() << value;
  return text;
}
