// The personal group and its first content.
#pragma once

#include "core/application.h"

namespace burrowmark {

enum class PersonalContent {
  kBlank = 0,
  kSample = 1,  // a group and a few shortcuts
};

// Adds the personal group behind the Help entries, or at its sorted place without them, and fills it.
void SetupPersonalGroup(Application& app, clsMenuCollection& store, PersonalContent content);

}  // namespace burrowmark
