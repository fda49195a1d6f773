#pragma once

#include <banking/BankMap.hpp>

#include <QString>

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

using MapOperation = std::function<void(orv::banking::BankMap&)>;
using Rehearsal = std::function<void(orv::banking::BankMap const&, MapOperation const&)>;

/// Carries out the operations that the bytes spell on a registry and on the model of one. Throws
/// std::logic_error, with the step and what differs, where an error, a log message, a text or what the
/// registry holds afterwards is not the model's. Gives the number of steps.
///
/// `mark` stands before each translated text. `rehearse` is given each operation, and the registry, before
/// it is carried out.
std::size_t holdAgainstModel(std::span<unsigned char const> bytes, QString const& mark = {},
                             Rehearsal const& rehearse = {});

/// Bytes for it, the same for the same seed.
std::vector<unsigned char> randomBytes(unsigned int seed);
