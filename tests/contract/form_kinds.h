// All forms of the program, to look each of them over.
#pragma once

#include <memory>
#include <span>

#include "core/application.h"
#include "ui/form.h"

namespace burrowmark {

struct FormKind {
  const char* name;
  std::unique_ptr<Form> (*make)(Application& app);
};

std::span<const FormKind> FormKinds();

}  // namespace burrowmark
