// Failures and the two manners in which a procedure meets them.
#pragma once

#include <stdexcept>
#include <type_traits>
#include <utility>

#include "platform/from_system.h"

namespace burrowmark {

// Something a procedure could not do. What it says is for a developer; users never see it.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A counter or a number that left its range.
class OverflowFailure : public Failure {
 public:
  using Failure::Failure;
};

// A text that isn't the number, boolean or date that it should be.
class ConversionFailure : public Failure {
 public:
  using Failure::Failure;
};

// A key that a list doesn't hold, or one that it holds already.
class KeyFailure : public Failure {
 public:
  using Failure::Failure;
};

// A file that can't be read or written.
class FileFailure : public Failure {
 public:
  using Failure::Failure;
};

// Ends `procedure` at its first failure and gives false; otherwise gives what the procedure gives, or true.
template <typename Procedure>
bool Attempt(Procedure&& procedure) {
  try {
    if constexpr (std::is_same_v<std::invoke_result_t<Procedure>, bool>) {
      return std::forward<Procedure>(procedure)();
    } else {
      std::forward<Procedure>(procedure)();
      return true;
    }
  } catch (const Failure&) {
    return false;
  }
}

// Passes over one statement that fails.
template <typename Statement>
void Skip(Statement&& statement) {
  static_cast<void>(Attempt([&statement] { statement(); }));
}

}  // namespace burrowmark
