// Everything that the program asks of a system, in one place.
#pragma once

#include "platform/file_system.h"
#include "platform/registry_api.h"
#include "platform/system_facts.h"

namespace burrowmark {

struct Platform {
  RegistryApi& registry;
  FileSystem& files;
  SystemFacts& system;
  Clock& clock;
};

}  // namespace burrowmark
