#pragma once

#include <QDir>
#include <QRegularExpression>

#include <string>
#include <vector>

/// The text with the code of each space that looks like another, so that a failure shows what differs.
inline std::string coded(QString text)
{
  return text.replace(u'\u00a0', "\\u{A0}").replace(u'\u202f', "\\u{202F}").toStdString();
}

/// The text of a file of these tests.
inline QString textOf(QString const& name)
{
  QFile file(QStringLiteral(DATA "/") + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}

/// The names of the text files in a folder, without their ends.
inline std::vector<std::string> filesIn(char const* folder)
{
  std::vector<std::string> names;
  for (auto const& name : QDir(QStringLiteral(DATA "/") + folder).entryList({"*.txt"})) {
    names.push_back(name.chopped(4).toStdString());
  }
  return names;
}

/// A name for GoogleTest.
inline std::string plain(std::string const& name)
{
  return QString::fromStdString(name).replace(QRegularExpression("\\W+"), "_").toStdString();
}
