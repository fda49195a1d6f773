#pragma once

#include <QString>

#include <functional>

/// Gives a number below the bound.
using Draw = std::function<unsigned int(unsigned int bound)>;

/// Takes so many drawn steps, with a registry and with the model of one. Throws std::logic_error with what
/// differs, where the registry does not do as the model. The translator has to be `placeholdersOf`.
void takeSteps(std::size_t count, Draw const& draw);

/// What is left of a text that tells which bank, number and other bank it is about.
QString placeholdersOf(QString const& text);
