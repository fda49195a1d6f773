#pragma once

#include <QString>

/// The text of the BankError for this bank and this message, whose placeholders are filled; `mark` stands
/// before each translated text.
inline QString bankErrorText(QString const& bank, QString const& message, QString const& mark = {})
{
  return mark + "There is an issue with the bank '" + bank + "'. " + mark + message;
}
