// Everything that the program asks of a system, in one place.
#pragma once

#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/file_system.h"
#include "platform/keyboard.h"
#include "platform/menus.h"
#include "platform/network.h"
#include "platform/registry_api.h"
#include "platform/shell.h"
#include "platform/system_facts.h"
#include "platform/window_system.h"
#include "platform/workers.h"

namespace burrowmark {

struct Platform {
  RegistryApi& registry;
  FileSystem& files;
  SystemFacts& system;
  Clock& clock;
  WindowSystem& windows;
  Menus& menus;
  Drawing& drawing;
  Shell& shell;
  Dialogs& dialogs;
  Keyboard& keyboard;
  Clipboard& clipboard;
  Workers& workers;
  Network& network;
};

}  // namespace burrowmark
