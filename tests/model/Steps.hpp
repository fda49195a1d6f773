#pragma once

#include <functional>

/// Draws a number below the bound.
using Draw = std::function<unsigned int(unsigned int bound)>;

/// How many names and numbers there are to draw, and below what a bank's kind for each number is
/// drawn, where zero and what is no kind stand for no account.
struct Bounds
{
  unsigned int names = 7;
  unsigned int numbers = 8;
  unsigned int kinds = 20;
};

/// Makes a registry of drawn banks, and then so many drawn changes. Throws std::logic_error, which
/// tells the step, if the registry does not do as the model.
void takeSteps(unsigned int changes, Draw const& draw, Bounds const& bounds = {});
