#pragma once

#include <QString>

#include <cstdint>
#include <span>

/// Takes the steps that the bytes spell, with a registry and with the model of one. Throws
/// std::logic_error, with the step and what differs, where the registry does not do as the model. The
/// translator has to be `placeholdersOf`.
void takeSteps(std::span<std::uint8_t const> bytes);

/// What is left of a text that tells which bank, number and other bank it is about.
QString placeholdersOf(QString const& text);
