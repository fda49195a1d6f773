#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include <functional>

/// Translates the texts of the context QObject while it lives, by a tilde before them or as the
/// function says.
class ScopedTranslator : public QTranslator
{
public:
  using Translated = std::function<QString(QString const& text)>;

  explicit ScopedTranslator(Translated translated = [](auto const& text) { return "~" + text; })
      : translated_(std::move(translated))
  {
    QCoreApplication::installTranslator(this);
  }
  ~ScopedTranslator() override { QCoreApplication::removeTranslator(this); }

  bool isEmpty() const override { return false; }

  QString translate(char const* context, char const* text, char const* comment,
                    int plural) const override
  {
    auto const isOurs = qstrcmp(context, "QObject") == 0 && comment == nullptr && plural == -1;
    return isOurs ? translated_(QString::fromUtf8(text)) : "not a text of the library";
  }

private:
  Translated translated_;
};
