#pragma once

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QTranslator>

#include <gmock/gmock.h>
#include <utility>

/// Translates texts of the context QObject while it lives: those of the map as it says, all others by
/// putting a tilde before them.
class ScopedTranslator : public QTranslator
{
public:
  explicit ScopedTranslator(QMap<QString, QString> texts = {}) : texts_(std::move(texts))
  {
    EXPECT_TRUE(QCoreApplication::installTranslator(this));
  }
  ~ScopedTranslator() override { QCoreApplication::removeTranslator(this); }

  bool isEmpty() const override { return false; }

  QString translate(char const* context, char const* source, char const* disambiguation,
                    int plural) const override
  {
    EXPECT_STREQ(context, "QObject");
    EXPECT_EQ(disambiguation, nullptr);
    EXPECT_EQ(plural, -1);
    auto const text = QString::fromUtf8(source);
    return texts_.value(text, QStringLiteral("~") + text);
  }

private:
  QMap<QString, QString> texts_;
};
